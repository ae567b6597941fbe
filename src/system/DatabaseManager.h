#pragma once

#include "model/ApplicationInfo.h"
#include "model/DatabaseAppEntry.h"
#include "model/SettingsRecords.h"
#include "platform/Bytes.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavrik {

class IconManager;
class SettingsManager;
class UnsupportedAppsManager;
struct Mac;

/// Reads and writes the Launchpad database, which belongs to the Dock; titles aside. Each operation opens a
/// connection of its own, without a busy timeout, and closes it: a locked database fails at once. Background
/// thread only. Nothing is kept between calls.
class DatabaseManager {
public:
    DatabaseManager(Mac& mac, SettingsManager& settings, IconManager& icons,
                    const UnsupportedAppsManager& unsupported);

    using AppRow = std::pair<ApplicationInfo, DatabaseAppEntry>;

    /// The applications that Launchpad shows, sorted by name. Records the hidden-flag applications in the
    /// settings, in one write. Empty on any failure.
    std::vector<AppRow> loadLaunchpadApps();

    /// Every row of a bundle identifier, in row order. Empty on any failure.
    std::vector<DatabaseAppEntry> appEntries(const std::string& forBundleID);

    /// Exchanges flags, parent and ordering of two rows in one exclusive transaction with the update triggers
    /// switched off. False, with a log line and nothing changed, on any failure.
    [[nodiscard]] bool swapItemPlacement(RowID rowID, RowID withRowID);

    /// Where a row stands now; nothing when there is no such row or the database cannot be read.
    std::optional<ItemPlacement> placement(RowID rowID);

    /// Names of needed columns ("items.flags") that the database lacks; empty when all are there. Looked at
    /// before the first write of an apply, since a system update may have changed the schema. Nothing when the
    /// database cannot be read.
    std::optional<std::vector<std::string>> missingColumns();

    /// Whether a change could begin now. False while another program has a transaction open, and when there is
    /// no database. Changes nothing.
    bool isWritable();

    MacPath launchpadDatabasePath() const;

    bool isIOSApp(const MacPath& path) const;
    bool isStandardLocation(const MacPath& path) const;
    /// Nothing when the bookmark does not resolve.
    std::optional<MacPath> resolveBookmarkPath(ByteView bookmark) const;
    /// The application that a wrapper stands for, looked up by name in the five standard folders; nothing when
    /// it is in none.
    std::optional<MacPath> originalAppPath(const MacPath& forWrapperPath) const;

private:
    /// A listed row of a platform application that carries the hidden flag.
    struct HiddenRow {
        std::string bundleID;
        std::int32_t flags;
        RowID rowID;
        bool isWrapper;
    };

    ApplicationInfo describe(std::string title, std::string bundleID, const MacPath& path) const;
    void recordHiddenApps(const std::vector<HiddenRow>& rows);

    Mac& m_mac;
    SettingsManager& m_settings;
    IconManager& m_icons;
    const UnsupportedAppsManager& m_unsupported;
    const MacPath m_home;
};

} // namespace tavrik
