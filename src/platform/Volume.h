#pragma once

#include "platform/Path.h"

#include <string>
#include <string_view>

namespace tavrik {

/// Where things are on the Mac. Constant for the life of the process.
class Volume {
public:
    virtual ~Volume() = default;

    virtual MacPath home() const = 0;

    /// As the platform gives it, with its trailing "/": "/var/folders/ab/xyz/T/".
    virtual std::string temporaryFolder() const = 0;

    /// The user's Application Support folder.
    virtual MacPath applicationSupport() const = 0;

    /// The program's own bundle identifier; empty when it runs without a bundle.
    virtual std::string bundleIdentifier() const = 0;

    /// A file of the program's own bundle, existing or not: "Warning.rtf".
    virtual MacPath resource(std::string_view name) const = 0;

    /// For the few libraries that open a file by themselves: where the host keeps it, links followed. Empty
    /// when its folder does not exist.
    virtual HostPath hostPath(const MacPath& path) const = 0;
};

} // namespace tavrik
