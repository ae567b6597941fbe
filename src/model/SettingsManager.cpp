#include "model/SettingsManager.h"

#include "model/SettingsCoding.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Volume.h"

#include <charconv>

namespace tavrik {

namespace {

constexpr const char* kMappings = "TavrikMappings";
constexpr const char* kSelectedIcons = "SelectedIcons";
constexpr const char* kFontState = "CurrentFontState";
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

} // namespace

MacPath supportFolder(const Volume& volume) {
    const std::string identifier = volume.bundleIdentifier();
    return volume.applicationSupport() / (identifier.empty() ? kFallbackBundleIdentifier : identifier);
}

SettingsManager::SettingsManager(Mac& mac)
    : m_clock(mac.clock),
      m_appSupportURL(supportFolder(mac.volume)),
      m_iconCacheURL(m_appSupportURL / "IconCache"),
      m_store(mac.files, m_appSupportURL) {
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
    m_store.changeEntries(kSelectedIcons, [&](plist::Dictionary& all) {
        if (index)
            all[bundleID] = *index;
        else
            all.erase(bundleID);
    });
}

std::optional<std::int64_t> SettingsManager::getSelectedIcon(const std::string& bundleID) {
    const auto root = m_store.snapshot();
    const plist::Value* value = entryAt(*root, kSelectedIcons, bundleID);
    const auto* index = value ? value->as<std::int64_t>() : nullptr;
    return index ? std::optional(*index) : std::nullopt;
}

// The styled font

void SettingsManager::setCurrentFontState(const std::optional<FontState>& state) {
    m_store.change([&](plist::Dictionary& root) {
        if (state)
            root[kFontState] = settings::encode(FontState{state->fontName, state->isMultiCase, m_clock.now()});
        else
            root.erase(kFontState);
    });
}

std::optional<FontState> SettingsManager::getCurrentFontState() {
    const auto root = m_store.snapshot();
    const auto found = root->find(kFontState);
    return found == root->end() ? std::nullopt : settings::decode<FontState>(found->second);
}

// Folder titles

void SettingsManager::saveFolderBackup(RowID folderID, const std::optional<std::string>& original,
                                       const std::optional<std::string>& lastGood,
                                       const std::optional<std::string>& lastGoodFont) {
    m_store.changeEntries(kFolderBackups, [&](plist::Dictionary& all) {
        plist::Dictionary& backup = ensureDictionaryAt(all, folderKey(folderID));
        if (original) {
            backup["original"] = *original;
            backup["originalDate"] = m_clock.now();
        }
        if (lastGood) {
            backup["lastGood"] = *lastGood;
            backup["lastGoodDate"] = m_clock.now();
            if (lastGoodFont)
                backup["lastGoodFont"] = *lastGoodFont;
        }
    });
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
    removeEntry(folderKey(folderID), kFolderBackups);
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

} // namespace tavrik
