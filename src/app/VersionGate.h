#pragma once

#include <string>

namespace tavrik {

class Alerts;
class Machine;
struct SystemVersion;

/// Whether the program knows this system. A system may tell older programs that it is version 16 where it is
/// 26, so 16 is taken for 26.
bool isSupported(const SystemVersion& version);

/// "26.0.1".
std::string textOf(const SystemVersion& version);

/// Whether the program may run on this system. On one that is too new the person is told first.
bool passesVersionGate(const Machine& machine, Alerts& alerts);

} // namespace tavrik
