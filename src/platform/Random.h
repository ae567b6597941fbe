#pragma once

#include "platform/Bytes.h"

#include <cstddef>
#include <string>

namespace tavrik {

class Random {
public:
    virtual ~Random() = default;

    /// Cryptographically secure. Never fails: a system without randomness ends the process.
    virtual Bytes bytes(std::size_t count) = 0;
};

/// The operating system's own generator.
class SystemRandom : public Random {
public:
    Bytes bytes(std::size_t count) override;
};

/// A fresh random UUID in the Mac's form, upper case: "F4C6998D-4A13-4C6E-9B0A-3E1A9C2B7D51".
std::string makeUUID(Random& random);

} // namespace tavrik
