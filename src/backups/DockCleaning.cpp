#include "backups/DockCleaning.h"

#include "fonts/PlainNames.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/PropertyList.h"
#include "system/DatabaseManager.h"
#include "system/DockTiles.h"

#include <cstddef>
#include <string>

namespace tavrik {

namespace {

MacPath target(const dock::Tile& tile) {
    return tile.url() ? dock::pathOf(*tile.url()) : MacPath();
}

} // namespace

DockCleaning::DockCleaning(Mac& mac, SettingsManager& settings, const DatabaseManager& database,
                           const FontReplacer& fonts)
    : m_mac(mac),
      m_settings(settings),
      m_database(database),
      m_fonts(fonts) {}

Bytes DockCleaning::clean(Bytes dockPlist) {
    auto dock = plist::parse(dockPlist);
    if (!dock || !dock->as<plist::Dictionary>()) {
        log("⚠️ Could not parse dock plist, returning original");
        return dockPlist;
    }
    if (!dock->find<plist::Array>("persistent-apps")) {
        log("⚠️ No persistent-apps found, returning original");
        return dockPlist;
    }

    std::size_t swapped = 0;
    std::size_t renamed = 0;
    for (dock::Tile& tile : dock::allTiles(*dock)) {
        if (const MacPath wrapper = target(tile); isWrapperPath(wrapper) && pointToOriginal(tile, wrapper))
            ++swapped;
        if (!tile.label())
            continue;
        // By the original's URL, so that a label in the user's language stays.
        const std::string plain = plainLabel(*tile.label(), tile.url() ? *tile.url() : std::string(), m_fonts);
        if (plain == *tile.label())
            continue;
        log("  🔤 Cleaning font from: " + *tile.label());
        tile.setLabel(plain);
        ++renamed;
    }
    if (swapped + renamed == 0) {
        log("  ℹ️ Dock plist is already clean");
        return dockPlist;
    }
    log(std::to_string(swapped) + " Tavrik bookmarks and " + std::to_string(renamed) + " styled names in Dock");

    auto cleaned = plist::serialize(*dock, plist::Format::binary);
    if (!cleaned) {
        log("⚠️ Error cleaning dock plist: " + cleaned.error().description + ", returning original");
        return dockPlist;
    }
    return std::move(*cleaned);
}

bool DockCleaning::pointToOriginal(dock::Tile& tile, const MacPath& wrapper) const {
    const auto original = originalOf(tile, wrapper);
    if (!original) {
        log("  ⚠️ No original found for the Dock tile of " + wrapper.string());
        return false;
    }
    log("  🔄 Swapping Tavrik bookmark for original: " + bundleName(original->path));
    const std::string url = m_mac.bookmarks.fileURL(original->path);
    tile.setURL(url.ends_with('/') ? url : url + '/'); // a bundle's, also while it is not there
    tile.setBookmark(original->bookmark);
    tile.setModified(original->modified ? &*original->modified : nullptr);
    return true;
}

std::optional<DockCleaning::Original> DockCleaning::originalOf(const dock::Tile& tile,
                                                               const MacPath& wrapper) const {
    const auto saved = tile.bundleID() ? m_settings.getDockBookmark(*tile.bundleID()) : std::nullopt;
    const auto first = saved ? m_mac.bookmarks.resolve(saved->bookmark) : Result<MacPath>(Error{});
    if (first && !isWrapperPath(*first))
        return Original{*first, saved->bookmark, saved->fileModDate};

    const std::optional<MacPath> path = originalPath(wrapper);
    if (!path)
        return std::nullopt;
    const auto fresh = m_mac.bookmarks.make(*path);
    const auto attributes = m_mac.files.attributes(*path);
    if (fresh && attributes)
        return Original{*path, *fresh, dock::recordedDate(attributes->modified)};
    if (saved && !first)
        return Original{*path, saved->bookmark, saved->fileModDate};
    return std::nullopt;
}

/// The wrapper's link says where the original is, or was while its disk is not there; where it is no more, its
/// name may lead to it.
std::optional<MacPath> DockCleaning::originalPath(const MacPath& wrapper) const {
    std::optional<MacPath> linked;
    const auto contents = m_mac.files.readLink(wrapper / "Contents");
    if (contents && contents->starts_with('/') && contents->ends_with("/Contents") &&
        !isWrapperPath(MacPath(*contents)))
        linked = MacPath(*contents).parent();
    if (linked && m_mac.files.exists(*linked))
        return linked;
    const auto named = m_database.originalAppPath(wrapper);
    return named ? named : linked;
}

} // namespace tavrik
