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
    /// gone. What is missing or locked is tried again with each index; a missing database is not made anew.
    explicit Dock(HostPath root);
    /// As if killed: nothing is written, and what stands in the database's write-ahead log stays there.
    ~Dock();
    Dock(const Dock&) = delete;
    Dock& operator=(const Dock&) = delete;

    /// Adds a row for every registered bundle that has none by path, all in one transaction: on the last page,
    /// or on a new one when that is full, at its end, triggers at work. Does nothing when the volume's
    /// behaviour says that the Dock does not index. False when the database was locked; call again later.
    bool index();

    /// Told to quit politely: writes its copy of the preferences back, over whatever stands there by now, and
    /// closes the database, so that nothing stays in its write-ahead log. Nothing else may be called
    /// afterwards.
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

/// What is missing or of no use (a negative delay, or one above a day) is as in a new DockBehaviour.
DockBehaviour readDockBehaviour(const HostPath& root);
bool writeDockBehaviour(const HostPath& root, const DockBehaviour& behaviour);

} // namespace tavrik::practice
