#include "maintenance/Leftovers.h"

#include "backups/BackupManager.h"
#include "backups/SafetyCopies.h"
#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyServices.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/PosixFileManager.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "themes/ThemeManager.h"
#include "wrappers/TavrikAppManager.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tavrik {

namespace {

/// What the program writes by way of a temporary beside it.
constexpr std::array<std::string_view, 4> kReplaced = {".plist.new", ".png.new", ".icns.new", ".encrypted.new"};

bool isUnfinished(const std::string& name) {
    return name == "AppSettings.tmp" || name.ends_with(PosixFileManager::kUnfinishedCopy) ||
           std::ranges::any_of(kReplaced, [&](std::string_view ending) { return name.ends_with(ending); });
}

bool isTheme(const std::string& name) {
    return name.starts_with(".new-") || name.starts_with(".deleted-");
}

class Search {
public:
    Search(const FileManager& files, const MacPath& root) : m_files(files), m_root(root) {}

    /// The unfinished files in a folder below the root.
    void lookIn(const MacPath& folder) {
        for (const std::string& name : names(folder)) {
            if (isUnfinished(name) && isOfType(folder / name, FileType::file))
                found.push_back(folder / name);
        }
    }

    /// The same in the folders in it.
    void lookBelow(const MacPath& folder, std::string_view deeper = {}) {
        for (const std::string& name : names(folder)) {
            if (isOfType(folder / name, FileType::folder))
                lookIn(deeper.empty() ? folder / name : folder / name / deeper);
        }
    }

    void lookForThemes(const MacPath& folder) {
        for (const std::string& name : names(folder)) {
            if (isTheme(name))
                found.push_back(folder / name);
        }
    }

    void lookFor(const MacPath& file) {
        if (m_files.attributes(file, Links::dontFollow))
            found.push_back(file);
    }

    std::vector<MacPath> found;

private:
    std::vector<std::string> names(const MacPath& folder) const {
        if (!checkPlainFolders(m_files, m_root, folder))
            return {};
        const auto listed = m_files.list(folder);
        return listed ? *listed : std::vector<std::string>();
    }

    bool isOfType(const MacPath& path, FileType type) const {
        const auto attributes = m_files.attributes(path, Links::dontFollow);
        return attributes && attributes->type == type;
    }

    const FileManager& m_files;
    const MacPath m_root;
};

} // namespace

std::vector<MacPath> leftovers(const ApplyServices& with) {
    Search search(with.mac.files, with.settings.appSupportURL());
    search.lookIn(with.settings.appSupportURL());
    search.lookIn(with.pendingChanges.pendingChangesBaseURL());
    search.lookBelow(with.icons.pendingIconsBaseURL());
    search.lookBelow(with.icons.iconCacheURL());
    search.lookIn(with.backups.backupsBaseURL());
    const MacPath& themes = with.themes.themesDirectory();
    search.lookForThemes(themes);
    search.lookBelow(themes);
    search.lookBelow(themes, "Icons");

    Search wrappers(with.mac.files, with.wrappers.tavrikAppsURL());
    wrappers.lookIn(with.wrappers.tavrikAppsURL());
    search.found.insert(search.found.end(), wrappers.found.begin(), wrappers.found.end());

    const auto lookBeside = [&](const MacPath& file, std::string_view ending) {
        search.lookFor(MacPath(file.string() + std::string(ending)));
    };
    const SafetyCopies copies(with.mac, with.dock.dockPlistPath(), with.database.launchpadDatabasePath());
    for (const MacPath& file :
         {with.dock.dockPlistPath(), dockPreferencesBackupPath(with.mac.volume.home()), copies.dockPlist(),
          with.database.launchpadDatabasePath(), copies.launchpadDatabase()})
        lookBeside(file, ".new");
    lookBeside(copies.launchpadDatabase(), "-wal.new");

    const MacPath temporary(with.mac.volume.temporaryFolder());
    for (const char* name : {"launchpad_temp.db", "backup_check.db"}) {
        for (const char* ending : {"-journal", "-wal", "-shm", ""})
            lookBeside(temporary / name, ending);
    }
    return std::move(search.found);
}

} // namespace tavrik
