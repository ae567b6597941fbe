#pragma once

namespace tavrik::macos {

/// Has the system make no tabs of this process's windows, whatever the person prefers elsewhere. Main thread,
/// before the first window.
void disableAutomaticTabbing();

} // namespace tavrik::macos
