#pragma once

#include "platform/Machine.h"

#include <optional>
#include <string>
#include <utility>

namespace tavrik::test {

/// A machine of which nothing is known but its serial number.
struct NumberedMachine : Machine {
    explicit NumberedMachine(std::optional<std::string> number) : serial(std::move(number)) {}

    std::optional<std::string> serialNumber() const override { return serial; }

    SystemVersion systemVersion() const override { return {}; }

    std::optional<std::string> serial;
};

} // namespace tavrik::test
