#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/FileManager.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik::practice {

/// The bundles that lsregister was given, in order; those that are gone by now too.
std::vector<MacPath> registeredBundles(const FileManager& files);

/// What Launchpad records of an application.
struct BundleRecord {
    std::string title; ///< the file name without extension
    std::string identifier;
    Date modified;
    Bytes bookmark;
};

/// Reads a bundle, through the links of a wrapper. Nothing when it is no bundle with an identifier.
std::optional<BundleRecord> describeBundle(const FileManager& files, const MacPath& bundle);

} // namespace tavrik::practice
