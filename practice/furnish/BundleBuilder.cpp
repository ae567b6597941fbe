#include "practice/furnish/BundleBuilder.h"

#include <algorithm>
#include <string_view>

namespace tavrik::practice {

namespace {

constexpr const char* kPackageInfo = "APPL????";
constexpr mode_t kProgramMode = 0755;

/// A name for files that must be plain: letters and digits of ASCII, or the identifier's last part.
std::string executableName(const SampleApp& app) {
    const std::string_view identifier = app.identifier;
    std::string name;
    for (const char character : std::string_view(app.name))
        if (static_cast<unsigned char>(character) < 0x80 && character != ' ' && character != '&')
            name += character;
    return name.size() > 3 ? name : std::string(identifier.substr(identifier.rfind('.') + 1));
}

/// The binary and the XML form both occur on a Mac.
plist::Format formatFor(const SampleApp& app) {
    const auto letters = std::string_view(app.identifier).size();
    return letters % 2 == 0 ? plist::Format::binary : plist::Format::xml;
}

/// An asset catalogue that has the container's header and nothing in it.
Bytes emptyCatalogue() {
    constexpr std::string_view kMagic = "BOMStore";
    Bytes catalogue(512);
    std::ranges::copy(kMagic, catalogue.begin());
    catalogue[11] = 1; // version, big-endian
    return catalogue;
}

plist::Dictionary description(const BundleDescription& bundle) {
    plist::Dictionary info{
        {"CFBundleDevelopmentRegion", "en"},
        {"CFBundleDisplayName", bundle.name},
        {"CFBundleExecutable", bundle.executable},
        {"CFBundleIdentifier", bundle.identifier},
        {"CFBundleInfoDictionaryVersion", "6.0"},
        {"CFBundleName", bundle.name},
        {"CFBundlePackageType", "APPL"},
        {"CFBundleShortVersionString", bundle.version},
        {"CFBundleSupportedPlatforms", plist::Array{"MacOSX"}},
        {"CFBundleVersion", bundle.version},
        {"LSApplicationCategoryType", bundle.category},
        {"LSMinimumSystemVersion", "12.0"},
        {"NSHighResolutionCapable", true},
    };
    if (!bundle.iconFile.empty())
        info["CFBundleIconFile"] = bundle.iconFile;
    if (!bundle.iconName.empty())
        info["CFBundleIconName"] = bundle.iconName;
    return info;
}

void writeProgram(TreeWriter& tree, const MacPath& file, const SampleApp& app) {
    tree.file(file, bytesOf(placeholderProgram(app.name)), kProgramMode);
}

/// An application of a telephone: a flat bundle within a wrapper.
void writeIOSBundle(TreeWriter& tree, const SampleApp& app, const MacPath& bundle) {
    const std::string executable = executableName(app);
    const std::string innerName = executable + ".app";
    const MacPath inner = bundle / "Wrapper" / innerName;
    BundleDescription flat{app.name, app.identifier, executable, app.version, app.category, "", ""};
    plist::Dictionary info = description(flat);
    info["CFBundleSupportedPlatforms"] = plist::Array{"iPhoneOS"};
    info["CFBundleIcons"] =
        plist::Dictionary{{"CFBundlePrimaryIcon", plist::Dictionary{{"CFBundleIconName", "AppIcon"}}}};
    info["LSRequiresIPhoneOS"] = true;
    info["MinimumOSVersion"] = "15.0";
    info["UIDeviceFamily"] = plist::Array{1, 2};
    tree.propertyList(inner / "Info.plist", info, plist::Format::binary);
    tree.file(inner / "PkgInfo", bytesOf(kPackageInfo));
    tree.file(inner / "Assets.car", emptyCatalogue());
    writeProgram(tree, inner / executable, app);
    tree.propertyList(bundle / "Wrapper/iTunesMetadata.plist",
                      plist::Dictionary{{"bundleDisplayName", app.name},
                                        {"bundleShortVersionString", app.version},
                                        {"itemId", 1'500'000'001},
                                        {"softwareVersionBundleId", app.identifier}},
                      plist::Format::xml);
    tree.propertyList(bundle / "Wrapper/BundleMetadata.plist",
                      plist::Dictionary{{"installDate", modifiedDate(app)}}, plist::Format::binary);
    tree.link(bundle / "WrappedBundle", "Wrapper/" + innerName);
}

void writeMacBundle(TreeWriter& tree, const SampleApp& app, const Bytes& icon, const MacPath& bundle) {
    const MacPath resources = bundle / "Contents/Resources";
    BundleDescription description{app.name, app.identifier, executableName(app), app.version, app.category, "",
                                  "",       formatFor(app)};
    tree.folder(resources);
    switch (app.icon) {
    case BundleIcon::named:
        description.iconFile = "AppIcon";
        tree.file(resources / "AppIcon.icns", icon);
        break;
    case BundleIcon::namedWithExtension:
        description.iconFile = description.executable + ".icns";
        tree.file(resources / description.iconFile, icon);
        break;
    case BundleIcon::namedButMissing:
        description.iconFile = "Application";
        tree.file(resources / "Icon.icns", icon);
        break;
    case BundleIcon::catalogueOnly:
        description.iconName = "AppIcon";
        tree.file(resources / "Assets.car", emptyCatalogue());
        break;
    case BundleIcon::none:
        break;
    }
    writeBundleInfo(tree, bundle, description);
    writeProgram(tree, bundle / "Contents/MacOS" / description.executable, app);
}

} // namespace

void writeBundleInfo(TreeWriter& tree, const MacPath& bundle, const BundleDescription& bundleDescription) {
    tree.propertyList(bundle / "Contents/Info.plist", description(bundleDescription), bundleDescription.format);
    tree.file(bundle / "Contents/PkgInfo", bytesOf(kPackageInfo));
}

void writeSampleBundle(TreeWriter& tree, const SampleApp& app, const Bytes& icon) {
    writeBundleCopy(tree, app, icon, bundlePath(app));
}

void writeBundleCopy(TreeWriter& tree, const SampleApp& app, const Bytes& icon, const MacPath& bundle) {
    if (app.isIOSApp)
        writeIOSBundle(tree, app, bundle);
    else
        writeMacBundle(tree, app, icon, bundle);
    tree.date(bundle, modifiedDate(app));
}

std::string placeholderProgram(const std::string& name) {
    return "#!/bin/sh\n# " + name + " has a place on this practice Mac, but nothing to run.\nexit 0\n";
}

} // namespace tavrik::practice
