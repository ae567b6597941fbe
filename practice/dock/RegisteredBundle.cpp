#include "practice/dock/RegisteredBundle.h"

#include "platform/practice/BookmarkCodec.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeBookmarks.h"
#include "platform/practice/PropertyListFile.h"

namespace tavrik::practice {

namespace {

/// The option of the bookmarks that the system makes for itself.
constexpr std::uint32_t kWithoutImplicitSecurityScope = 0x20000000;

std::optional<std::string> identifierOf(const FileManager& files, const MacPath& bundle) {
    for (const char* place : {"Contents/Info.plist", "WrappedBundle/Info.plist"}) {
        const auto info = readPropertyList(files, bundle / place);
        if (!info || !*info)
            continue;
        if (const auto* identifier = (*info)->find<std::string>("CFBundleIdentifier"))
            return *identifier;
    }
    return std::nullopt;
}

} // namespace

std::vector<MacPath> registeredBundles(const FileManager& files) {
    std::vector<MacPath> bundles;
    const auto list = readPropertyList(files, kRegisteredBundles);
    const auto* paths = list && *list ? (*list)->as<plist::Array>() : nullptr;
    if (!paths)
        return bundles;
    for (const plist::Value& path : *paths)
        if (const auto* text = path.as<std::string>())
            bundles.emplace_back(*text);
    return bundles;
}

std::optional<BundleRecord> describeBundle(const FileManager& files, const MacPath& bundle) {
    const auto attributes = files.attributes(bundle);
    const auto identifier = identifierOf(files, bundle);
    auto target = describeForBookmark(files, bundle);
    if (!attributes || !identifier || !target)
        return std::nullopt;
    target->options = kWithoutImplicitSecurityScope;
    return BundleRecord{bundle.stem(), *identifier, attributes->modified, encodeBookmark(*target)};
}

} // namespace tavrik::practice
