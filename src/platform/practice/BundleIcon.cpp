#include "platform/practice/BundleIcon.h"

#include "platform/FileManager.h"
#include "platform/Icns.h"
#include "platform/PathComponent.h"
#include "platform/Png.h"
#include "platform/practice/PropertyListFile.h"

namespace tavrik::practice {

namespace {

constexpr std::size_t kLargestIconFile = 64u << 20; ///< bytes

/// Where a bundle has its Info.plist and its resources; the same folder in a flat one.
struct BundleFolders {
    MacPath contents;
    MacPath resources;
};

BundleFolders foldersOf(const FileManager& files, const MacPath& bundle) {
    const MacPath contents = bundle / "Contents";
    if (files.exists(contents))
        return {contents, contents / "Resources"};
    const MacPath wrapped = bundle / "WrappedBundle";
    if (files.exists(wrapped))
        return {wrapped, wrapped};
    const MacPath wrapper = bundle / "Wrapper";
    if (const auto names = files.list(wrapper)) {
        for (const std::string& name : *names) {
            if (MacPath(name).extension() == "app")
                return {wrapper / name, wrapper / name};
        }
    }
    return {bundle, bundle};
}

void addTexts(const plist::Value& dictionary, std::vector<std::string>& texts) {
    const auto* entries = dictionary.find<plist::Array>("CFBundleIconFiles");
    if (!entries)
        return;
    for (const plist::Value& entry : *entries) {
        if (const auto* text = entry.as<std::string>())
            texts.push_back(*text);
    }
}

/// The names of icon files that an Info.plist gives, those that cannot be a file's name left out.
std::vector<std::string> iconNames(const plist::Value& info) {
    std::vector<std::string> names;
    if (const auto* name = info.find<std::string>("CFBundleIconFile"))
        names.push_back(*name);
    addTexts(info, names);
    if (const auto* icons = info.find("CFBundleIcons")) {
        if (const auto* primary = icons->find("CFBundlePrimaryIcon"))
            addTexts(*primary, names);
    }
    std::erase_if(names, [](const std::string& name) { return !isSafePathComponent(name); });
    return names;
}

QImage readIcon(const FileManager& files, const MacPath& file) {
    const auto bytes = files.read(file, kLargestIconFile);
    if (!bytes)
        return {};
    const QImage picture = icns::largestImage(*bytes);
    return picture.isNull() ? png::decode(*bytes) : picture;
}

} // namespace

QImage bundleIcon(const FileManager& files, const MacPath& bundle) {
    const BundleFolders folders = foldersOf(files, bundle);
    const auto info = readPropertyList(files, folders.contents / "Info.plist");
    if (!info || !*info)
        return {};

    QImage largest;
    for (const std::string& name : iconNames(**info)) {
        for (const char* ending : {".icns", "", "@3x.png", "@2x.png", ".png"}) {
            const QImage picture = readIcon(files, folders.resources / (name + ending));
            if (picture.width() > largest.width())
                largest = picture;
        }
    }
    return largest;
}

} // namespace tavrik::practice
