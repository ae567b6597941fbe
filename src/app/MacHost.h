#pragma once

#include <memory>

namespace tavrik {

struct Mac;

/// The Mac that this process works on: the real one, or a practice Mac.
class MacHost {
public:
    virtual ~MacHost() = default;

    virtual Mac& mac() = 0;

    /// Makes sure that the Mac's session runs, so that the Dock indexes and comes back after a restart. A real
    /// Mac's always does. Called before the first change that the Dock is to see; may take a second.
    virtual void startSession() = 0;

    /// Has the system make no tabs of the program's windows; nothing where none does. Main thread, before the
    /// first window.
    virtual void disableAutomaticTabbing() {}
};

} // namespace tavrik
