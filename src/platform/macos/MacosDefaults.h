#pragma once

#include "platform/Path.h"
#include "platform/UserDefaults.h"

#include <string>

namespace tavrik::macos {

/// A domain of the user's defaults, through the system's preferences service. The service gives every program
/// that asks the latest values; it writes the file in its own time, so a value that was set outlives this
/// process at once, and a power cut a little later.
class MacosDefaults : public UserDefaults {
public:
    /// `domain` is the program's bundle identifier, `home` the user's home.
    MacosDefaults(std::string domain, const MacPath& home);

    std::optional<plist::Value> value(std::string_view key) const override;
    Status set(std::string_view key, std::optional<plist::Value> value) override;
    Status removeAll() override;
    void flushDockDomain() override;

private:
    const std::string m_domain;
    const MacPath m_file; ///< where the service keeps the domain
};

} // namespace tavrik::macos
