#pragma once

#include "platform/Path.h"

#include <memory>

namespace tavrik::practice {

/// What the Dock does, without a process around it: the program of the Dock runs one of these in real time,
/// tests run one in virtual time. One thread.
class Dock {
public:
    /// Starts the Dock of a volume: opens the Launchpad database in write-ahead mode and keeps it open, takes a
    /// copy of the preferences into memory, and removes the rows of bundles that were registered once and are
    /// gone.
    explicit Dock(HostPath root);
    /// As if killed: nothing is written.
    ~Dock();
    Dock(const Dock&) = delete;
    Dock& operator=(const Dock&) = delete;

    /// Adds a row for every registered bundle that has none by path: on the last page with room, at the lowest
    /// free ordering, triggers at work. Does nothing when the volume's behaviour says that the Dock does not
    /// index. False when the database was locked; call again later.
    bool index();

    /// Told to quit politely: writes its copy of the preferences back.
    void quit();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// The volume's settings of how its Dock behaves.
struct DockBehaviour {
    double restartDelay = 0.4; ///< seconds from the end of one Dock to the start of the next
    double indexDelay = 4.0;   ///< seconds from the start of a Dock to its index of new bundles
    bool indexes = true;

    bool operator==(const DockBehaviour&) const = default;
};

DockBehaviour readDockBehaviour(const HostPath& root);
bool writeDockBehaviour(const HostPath& root, const DockBehaviour& behaviour);

} // namespace tavrik::practice
