#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

struct SystemVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;

    auto operator<=>(const SystemVersion&) const = default;
};

/// Of "14.4.1"; what is missing or no number is 0.
SystemVersion systemVersionOf(std::string_view text);

/// Facts about the machine itself.
class Machine {
public:
    virtual ~Machine() = default;

    /// The platform serial number; nothing where there is none, as in some virtual machines.
    virtual std::optional<std::string> serialNumber() const = 0;

    /// The true version, also on systems that tell older programs another one.
    virtual SystemVersion systemVersion() const = 0;
};

} // namespace tavrik
