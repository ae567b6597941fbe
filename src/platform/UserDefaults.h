#pragma once

#include "platform/PropertyList.h"

#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

/// The program's own domain of user defaults: small presentation preferences. Any thread.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    virtual std::optional<plist::Value> value(std::string_view key) const = 0;

    /// Nothing removes the key. Durable by the time it returns; a failure leaves the old value.
    virtual Status set(std::string_view key, std::optional<plist::Value> value) = 0;

    /// Removes every key, and the file that holds them. Fine when there is none.
    virtual Status removeAll() = 0;

    /// Hands the preferences service what is pending for the Dock's domain and drops what it cached of it.
    virtual void flushDockDomain() = 0;
};

} // namespace tavrik
