#pragma once

namespace tavrik {

class Alerts;
class Machine;

/// Whether the program may run on this system. On one that is too new the person is told first. A system may
/// tell older programs that it is version 16 where it is 26, so 16 is taken for 26.
bool passesVersionGate(const Machine& machine, Alerts& alerts);

} // namespace tavrik
