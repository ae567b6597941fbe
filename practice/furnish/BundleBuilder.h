#pragma once

#include "platform/Bytes.h"
#include "practice/furnish/SampleApps.h"
#include "practice/furnish/TreeWriter.h"

#include <string>

namespace tavrik::practice {

/// What an application's bundle says about itself.
struct BundleDescription {
    std::string name;
    std::string identifier;
    std::string executable;
    std::string version;
    std::string category;
    std::string iconFile; ///< CFBundleIconFile; empty for none
    std::string iconName; ///< CFBundleIconName; empty for none
    plist::Format format = plist::Format::xml;
};

/// Writes Info.plist and PkgInfo into a bundle's Contents.
void writeBundleInfo(TreeWriter& tree, const MacPath& bundle, const BundleDescription& description);

/// Writes a sample application: its description, a small executable and, where it has one, its icon file. The
/// bundle carries the dates of the table.
void writeSampleBundle(TreeWriter& tree, const SampleApp& app, const Bytes& icon);

/// The same bundle at another place: a stale copy of it.
void writeBundleCopy(TreeWriter& tree, const SampleApp& app, const Bytes& icon, const MacPath& bundle);

/// What stands for an executable, since nothing of a Mac's can run here.
std::string placeholderProgram(const std::string& name);

} // namespace tavrik::practice
