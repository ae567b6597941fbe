#pragma once

namespace tavrik {

/// Chooses the font of the windows: a Mac's own there; elsewhere the one that is most like it, when it is
/// installed. To be called once, after the application object is made.
void useInterfaceFont();

} // namespace tavrik
