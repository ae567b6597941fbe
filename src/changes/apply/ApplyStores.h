#pragma once

#include "fonts/FolderNames.h"
#include "model/RowID.h"
#include "model/SettingsRecords.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

struct ApplicationInfo;
struct ApplyServices;
struct ApplySnapshot;

/// Both stores and the program's own files, as far as an apply can change them, read at one moment.
struct ApplyStores {
    /// What a person finds in Launchpad where an application has its place.
    struct ShownApp {
        std::string bundleID;
        std::optional<std::string> title;         ///< of the row that is shown; nothing where it is NULL
        std::optional<std::string> originalTitle; ///< of the application's own row
        MacPath original;                         ///< empty when its bookmark leads nowhere
        MacPath shown;                            ///< the original, or its wrapper
        MacPath gone;                             ///< where its bookmark led; empty while something is there
        bool isRetitled =
            true;      ///< whether a styled alphabet would be written into its title: it has a bookmark
        RowID page{};  ///< or page of a folder
        int place = 0; ///< from 0, among the applications and folders that are shown on the page

        bool operator==(const ShownApp&) const = default;
    };

    struct Tile {
        std::string bundleID; ///< empty where it has none
        std::optional<std::string> label;
        std::optional<std::string> url;
        MacPath path; ///< where its bookmark leads; empty when it leads nowhere

        bool operator==(const Tile&) const = default;
    };

    /// What there is of an application of the snapshot.
    struct AppState {
        std::map<std::uint64_t, MacPath> icons; ///< pending and permanent, by their number in the file system
        MacPath permanentFolder;
        std::optional<std::int64_t> selectedIcon; ///< as in the settings
        MacPath wrapper;                          ///< where it stands or would stand; empty when it cannot
        bool hasWrapper = false;                  ///< swapped in, with nothing left to do
        bool isRestyled = false;                  ///< there is something to take back
    };

    struct ThemeState {
        std::set<std::string> iconFiles;
        std::set<std::string> hidden;
    };

    std::map<RowID, ShownApp> apps;       ///< by the row of the original
    std::map<RowID, std::string> folders; ///< titles, the empty ones left out
    std::set<std::string>
        strayWrapperRows;           ///< of applications with a wrapper's row that stands in no one's place
    std::vector<Tile> tiles;        ///< of applications, in Dock order
    std::set<std::string> wrappers; ///< file names of the bundles in the wrapper folder
    std::map<std::string, AppState> staged;   ///< by bundle identifier
    std::map<std::string, ThemeState> themes; ///< by id, of the snapshot's those that are there

    /// What plain name a folder's title stands for.
    std::vector<TitleStyle> shownStyles{TitleStyle()};
    std::map<RowID, FolderBackup> folderBackups;
};

/// An error, in a sentence, when a store cannot be read. Background thread; blocks on the disk; changes
/// nothing.
Result<ApplyStores> readApplyStores(const ApplyServices& with, const ApplySnapshot& snapshot);

/// What there is of one application now.
ApplyStores::AppState appStateOf(const ApplyServices& with, const ApplicationInfo& app);

} // namespace tavrik
