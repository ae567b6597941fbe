#include "model/SettingsManager.h"

#include "model/SettingsCoding.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Volume.h"

#include <algorithm>
#include <charconv>

namespace tavrik {

namespace {

constexpr const char* kMappings = "TavrikMappings";
constexpr const char* kSelectedIcons = "SelectedIcons";
constexpr const char* kFontState = "CurrentFontState";
constexpr const char* kUnfinishedFontChange = "UnfinishedFontChange";
constexpr const char* kFolderBackups = "FolderBackups";
constexpr const char* kDockBookmarks = "DockBookmarks";
constexpr const char* kIconShapes = "IconShapeCache";
constexpr const char* kHiddenFlagApps = "HiddenFlagApps";
constexpr const char* kRetentionCount = "BackupRetentionCount";
constexpr const char* kSwapRecords = "SwapRecords";

constexpr std::int64_t kDefaultRetentionCount = 30;

std::string folderKey(RowID folderID) {
    return std::to_string(static_cast<std::int64_t>(folderID));
}

std::optional<RowID> folderOf(std::string_view key) {
    std::int64_t number = 0;
    const char* end = key.data() + key.size();
    const auto [stopped, error] = std::from_chars(key.data(), end, number);
    if (error != std::errc() || stopped != end)
        return std::nullopt;
    return RowID{number};
}

void putFontState(plist::Dictionary& root, const std::optional<FontState>& state, Date now) {
    if (state)
        root[kFontState] = settings::encode(FontState{state->fontName, state->isMultiCase, now});
    else
        root.erase(kFontState);
}

std::optional<FontState> fontStateIn(const plist::Dictionary& root) {
    const auto found = root.find(kFontState);
    return found == root.end() ? std::nullopt : settings::decode<FontState>(found->second);
}

std::vector<std::string> unfinishedStylesIn(const plist::Dictionary& root) {
    std::vector<std::string> styles;
    const auto found = root.find(kUnfinishedFontChange);
    const auto* entries = found == root.end() ? nullptr : found->second.as<plist::Array>();
    if (!entries)
        return styles;
    for (const plist::Value& entry : *entries)
        if (const auto* style = entry.as<std::string>())
            styles.push_back(*style);
    return styles;
}

} // namespace

MacPath supportFolder(const Volume& volume) {
    const std::string identifier = volume.bundleIdentifier();
    return volume.applicationSupport() / (identifier.empty() ? kFallbackBundleIdentifier : identifier);
}

SettingsManager::SettingsManager(Mac& mac, Use use)
    : m_clock(mac.clock),
      m_appSupportURL(supportFolder(mac.volume)),
      m_iconCacheURL(m_appSupportURL / "IconCache"),
      m_store(mac.files, m_appSupportURL) {
    if (use == Use::looking)
        m_store.setReadOnly();
    for (const MacPath& folder : {m_appSupportURL, m_iconCacheURL}) {
        if (const auto created = mac.files.createFolder(folder); !created) {
            log("Failed to create directories: " + created.error().description);
            return;
        }
    }
}

// The file as a whole

plist::Dictionary SettingsManager::loadSettings() {
    return m_store.load();
}

void SettingsManager::saveSettings(const plist::Dictionary& settings) {
    m_store.save(settings);
}

void SettingsManager::preloadSettings() {
    m_store.snapshot();
}

void SettingsManager::dropCache() {
    m_store.dropCache();
}

void SettingsManager::removeEntry(std::string_view subkey, std::string_view key) {
    m_store.removeEntry(subkey, key);
}

template<typename Record>
std::optional<Record> SettingsManager::entry(std::string_view key, std::string_view subkey) {
    const auto root = m_store.snapshot();
    const plist::Value* value = entryAt(*root, key, subkey);
    return value ? settings::decode<Record>(*value) : std::nullopt;
}

template<typename Record>
std::map<std::string, Record> SettingsManager::entries(std::string_view key) {
    std::map<std::string, Record> records;
    const auto root = m_store.snapshot();
    if (const auto* values = dictionaryAt(*root, key)) {
        for (const auto& [subkey, value] : *values) {
            if (auto record = settings::decode<Record>(value))
                records.emplace_hint(records.end(), subkey, std::move(*record));
        }
    }
    return records;
}

// Mappings

void SettingsManager::saveMapping(const std::string& bundleID, RowID originalRowID, RowID tavrikRowID) {
    const TavrikMapping mapping{originalRowID, tavrikRowID, m_clock.now()};
    m_store.changeEntries(kMappings,
                          [&](plist::Dictionary& all) { all[bundleID] = settings::encode(mapping); });
}

void SettingsManager::saveMappingAndEndSwap(const std::string& bundleID, RowID originalRowID,
                                            RowID tavrikRowID) {
    const TavrikMapping mapping{originalRowID, tavrikRowID, m_clock.now()};
    m_store.change([&](plist::Dictionary& root) {
        ensureDictionaryAt(root, kMappings)[bundleID] = settings::encode(mapping);
        ensureDictionaryAt(root, kSwapRecords).erase(bundleID);
    });
}

std::optional<TavrikMapping> SettingsManager::getMapping(const std::string& bundleID) {
    return entry<TavrikMapping>(kMappings, bundleID);
}

std::map<std::string, TavrikMapping> SettingsManager::getAllMappings() {
    return entries<TavrikMapping>(kMappings);
}

void SettingsManager::removeMapping(const std::string& bundleID) {
    removeEntry(bundleID, kMappings);
}

// Selected icons

void SettingsManager::setSelectedIcon(const std::string& bundleID, std::optional<std::int64_t> index) {
    setSelectedIcons({{bundleID, index}});
}

void SettingsManager::setSelectedIcons(const std::map<std::string, std::optional<std::int64_t>>& indices) {
    m_store.changeEntries(kSelectedIcons, [&](plist::Dictionary& all) {
        for (const auto& [bundleID, index] : indices) {
            if (index)
                all[bundleID] = *index;
            else
                all.erase(bundleID);
        }
    });
}

std::optional<std::int64_t> SettingsManager::getSelectedIcon(const std::string& bundleID) {
    const auto root = m_store.snapshot();
    const plist::Value* value = entryAt(*root, kSelectedIcons, bundleID);
    const auto* index = value ? value->as<std::int64_t>() : nullptr;
    return index ? std::optional(*index) : std::nullopt;
}

std::map<std::string, std::int64_t> SettingsManager::getAllSelectedIcons() {
    std::map<std::string, std::int64_t> indices;
    const auto root = m_store.snapshot();
    if (const auto* values = dictionaryAt(*root, kSelectedIcons)) {
        for (const auto& [bundleID, value] : *values) {
            if (const auto* index = value.as<std::int64_t>())
                indices.emplace_hint(indices.end(), bundleID, *index);
        }
    }
    return indices;
}

// The styled font

void SettingsManager::setCurrentFontState(const std::optional<FontState>& state) {
    m_store.change([&](plist::Dictionary& root) {
        putFontState(root, state, m_clock.now());
        root.erase(kUnfinishedFontChange);
    });
}

std::optional<FontState> SettingsManager::getCurrentFontState() {
    return fontStateIn(*m_store.snapshot());
}

bool SettingsManager::beginFontChange(const std::optional<FontState>& state) {
    const auto saved = m_store.change([&](plist::Dictionary& root) {
        std::vector<std::string> shown = unfinishedStylesIn(root);
        const auto current = fontStateIn(root);
        std::string style = current ? current->fontName : std::string();
        if (std::ranges::find(shown, style) == shown.end())
            shown.push_back(std::move(style));
        root[kUnfinishedFontChange] = plist::Array(shown.begin(), shown.end());
        putFontState(root, state, m_clock.now());
    });
    return saved == SettingsStore::Saved::yes;
}

std::vector<std::string> SettingsManager::getUnfinishedFontChange() {
    return unfinishedStylesIn(*m_store.snapshot());
}

void SettingsManager::endFontChange() {
    m_store.change([](plist::Dictionary& root) {
        root.erase(kUnfinishedFontChange);
        // Settings without any key are never written.
        ensureDictionaryAt(root, kFolderBackups);
    });
}

// Folder titles

void SettingsManager::saveFolderBackup(RowID folderID, const std::optional<std::string>& original,
                                       const std::optional<std::string>& lastGood,
                                       const std::optional<std::string>& lastGoodFont) {
    ignoreFailure(saveFolderBackups({{folderID, {original, {}, lastGood, {}, lastGoodFont}}}));
}

bool SettingsManager::saveFolderBackups(const std::map<RowID, FolderBackup>& backups) {
    if (backups.empty())
        return true;
    const auto saved = m_store.changeEntries(kFolderBackups, [&](plist::Dictionary& all) {
        for (const auto& [folderID, given] : backups) {
            plist::Dictionary& backup = ensureDictionaryAt(all, folderKey(folderID));
            if (given.original) {
                backup["original"] = *given.original;
                backup["originalDate"] = m_clock.now();
            }
            if (given.lastGood) {
                backup["lastGood"] = *given.lastGood;
                backup["lastGoodDate"] = m_clock.now();
                if (given.lastGoodFont)
                    backup["lastGoodFont"] = *given.lastGoodFont;
            }
        }
    });
    return saved == SettingsStore::Saved::yes;
}

std::optional<FolderBackup> SettingsManager::getFolderBackup(RowID folderID) {
    return entry<FolderBackup>(kFolderBackups, folderKey(folderID));
}

std::map<RowID, FolderBackup> SettingsManager::getAllFolderBackups() {
    std::map<RowID, FolderBackup> backups;
    for (auto& [key, backup] : entries<FolderBackup>(kFolderBackups)) {
        if (const auto folderID = folderOf(key))
            backups.emplace(*folderID, std::move(backup));
    }
    return backups;
}

void SettingsManager::removeFolderBackup(RowID folderID) {
    removeFolderBackups({folderID});
}

void SettingsManager::removeFolderBackups(const std::vector<RowID>& folderIDs) {
    if (folderIDs.empty())
        return;
    m_store.change([&](plist::Dictionary& root) {
        if (!dictionaryAt(root, kFolderBackups))
            return;
        plist::Dictionary& all = ensureDictionaryAt(root, kFolderBackups);
        for (const RowID folderID : folderIDs)
            all.erase(folderKey(folderID));
    });
}

// Dock bookmarks

void SettingsManager::saveDockBookmark(const DockBookmark& bookmark) {
    m_store.changeEntries(kDockBookmarks,
                          [&](plist::Dictionary& all) { all[bookmark.bundleID] = settings::encode(bookmark); });
}

std::optional<DockBookmark> SettingsManager::getDockBookmark(const std::string& bundleID) {
    return entry<DockBookmark>(kDockBookmarks, bundleID);
}

void SettingsManager::removeDockBookmark(const std::string& bundleID) {
    removeEntry(bundleID, kDockBookmarks);
}

// Icon shapes

void SettingsManager::setIconShape(const std::string& key, const plist::Value& result) {
    setIconShapes({{key, result}});
}

void SettingsManager::setIconShapes(const std::map<std::string, plist::Value>& results) {
    if (results.empty())
        return;
    m_store.changeEntries(kIconShapes, [&](plist::Dictionary& all) {
        for (const auto& [key, result] : results)
            all[key] = result;
    });
}

std::optional<plist::Value> SettingsManager::getIconShape(const std::string& key) {
    const auto root = m_store.snapshot();
    const plist::Value* value = entryAt(*root, kIconShapes, key);
    return value ? std::optional(*value) : std::nullopt;
}

void SettingsManager::clearIconShapeCache() {
    m_store.changeEntries(kIconShapes, [](plist::Dictionary& all) { all.clear(); });
}

// Hidden-flag applications

void SettingsManager::saveHiddenFlagApp(const std::string& bundleID, std::int64_t originalFlags,
                                        RowID originalRowID, std::optional<RowID> tavrikRowID,
                                        bool wasHiddenFlag) {
    saveHiddenFlagApps({{bundleID, {originalFlags, originalRowID, tavrikRowID, wasHiddenFlag, {}}}});
}

void SettingsManager::saveHiddenFlagApps(const std::vector<std::pair<std::string, HiddenFlagApp>>& apps) {
    if (apps.empty() || m_store.isReadOnly())
        return;
    m_store.changeEntries(kHiddenFlagApps, [&](plist::Dictionary& all) {
        for (const auto& [bundleID, app] : apps) {
            HiddenFlagApp seen = app;
            seen.lastSeenDate = m_clock.now();
            all[bundleID] = settings::encode(seen);
        }
    });
    for (const auto& [bundleID, app] : apps)
        log("💾 Saved hidden flag app to AppSettings.plist: " + bundleID +
            " with flags: " + std::to_string(app.originalFlags));
}

std::optional<HiddenFlagApp> SettingsManager::getHiddenFlagApp(const std::string& bundleID) {
    return entry<HiddenFlagApp>(kHiddenFlagApps, bundleID);
}

std::map<std::string, HiddenFlagApp> SettingsManager::getAllHiddenFlagApps() {
    return entries<HiddenFlagApp>(kHiddenFlagApps);
}

// Backups kept

void SettingsManager::setBackupRetentionCount(std::int64_t count) {
    m_store.change([&](plist::Dictionary& root) { root[kRetentionCount] = count; });
}

std::int64_t SettingsManager::getBackupRetentionCount() {
    const auto root = m_store.snapshot();
    const auto found = root->find(kRetentionCount);
    const auto* count = found == root->end() ? nullptr : found->second.as<std::int64_t>();
    return count ? *count : kDefaultRetentionCount;
}

// Swaps under way

bool SettingsManager::saveSwapRecord(const std::string& bundleID, const SwapRecord& record) {
    const auto saved = m_store.changeEntries(
        kSwapRecords, [&](plist::Dictionary& all) { all[bundleID] = settings::encode(record); });
    if (saved != SettingsStore::Saved::yes)
        return false;
    const auto root = m_store.onDisk();
    const plist::Value* stored = root ? entryAt(*root, kSwapRecords, bundleID) : nullptr;
    return stored && settings::decode<SwapRecord>(*stored) == record;
}

std::optional<SwapRecord> SettingsManager::getSwapRecord(const std::string& bundleID) {
    return entry<SwapRecord>(kSwapRecords, bundleID);
}

std::map<std::string, SwapRecord> SettingsManager::getAllSwapRecords() {
    return entries<SwapRecord>(kSwapRecords);
}

void SettingsManager::removeSwapRecord(const std::string& bundleID) {
    removeEntry(bundleID, kSwapRecords);
}

void SettingsManager::forgetSwap(const std::string& bundleID) {
    m_store.change([&](plist::Dictionary& root) {
        for (const char* key : {kMappings, kSwapRecords, kHiddenFlagApps}) {
            if (dictionaryAt(root, key))
                ensureDictionaryAt(root, key).erase(bundleID);
        }
    });
}

// All that speaks of the stores that a restore replaced

bool SettingsManager::clearAfterRestore(const std::set<std::string>& dockBookmarksToKeep) {
    const auto saved = m_store.change([&](plist::Dictionary& root) {
        for (const char* key :
             {kMappings, kSelectedIcons, kFontState, kUnfinishedFontChange, kSwapRecords, kHiddenFlagApps})
            root.erase(key);
        if (dictionaryAt(root, kDockBookmarks))
            std::erase_if(ensureDictionaryAt(root, kDockBookmarks),
                          [&](const auto& bookmark) { return !dockBookmarksToKeep.contains(bookmark.first); });
        // Settings without any key are never written.
        ensureDictionaryAt(root, kFolderBackups);
    });
    return saved == SettingsStore::Saved::yes;
}

} // namespace tavrik
