#pragma once

#include "maintenance/HealthFinding.h"
#include "model/ApplicationInfo.h"
#include "model/SettingsRecords.h"
#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// What the checks of the health have in common: the stores, read once, and what was found so far. Changes
/// nothing: the Launchpad database is read from a private copy. Background thread.
struct HealthLook {
    explicit HealthLook(const ApplyServices& services);

    /// A row of an application in Launchpad.
    struct Row {
        RowID number{};
        RowID page{}; ///< or folder
        std::optional<std::int32_t> flags;
        std::string title;
        std::string bundleID;
        MacPath path;     ///< where its bookmark leads; empty when nothing is there
        MacPath recorded; ///< where it was made to lead

        MacPath best() const { return path.empty() ? recorded : path; }
    };

    const ApplyServices& with;

    /// Why a store cannot be used, in a sentence.
    std::optional<std::string> launchpadFault;
    std::optional<std::string> dockFault;

    enum class Settings { sound, fromBackup, lost };
    Settings settings = Settings::sound;

    std::optional<std::string> triggerKey;       ///< nothing where the row is missing
    std::vector<Row> rows;                       ///< empty with a fault
    std::optional<plist::Value> dock;            ///< nothing with a fault
    std::map<std::string, ApplicationInfo> apps; ///< the catalogue by bundle identifier
    std::map<std::string, TavrikMapping> mappings;
    std::map<std::string, SwapRecord> swaps;
    std::set<std::string> savedBookmarks; ///< of tiles in the settings, by bundle identifier

    std::vector<HealthFinding> findings;

    /// Applications of which a finding was made whose repair puts everything of them right. Nothing more is
    /// told of them.
    std::set<std::string> covered;

    /// Whether what stands in Launchpad can be compared with what the settings say.
    bool canCompare() const { return !launchpadFault && settings != Settings::lost; }

    const Row* rowOf(const std::string& bundleID, RowID number) const;

    /// Where the application itself is, outside the wrapper folder and the Trash; empty when it is nowhere.
    MacPath originalOf(const std::string& bundleID) const;

    /// Where the wrapper of a mapped application stands or should stand; empty when nothing tells.
    MacPath wrapperOf(const std::string& bundleID) const;

    /// Where the tile of an application leads, or led when nothing is there any more; empty without a tile. Of
    /// several the first counts, which is the one that is ever pointed elsewhere.
    MacPath tileOf(const std::string& bundleID) const;

    /// As a person calls it.
    std::string nameOf(const std::string& bundleID) const;

    /// The application for an operation on its wrapper: with a path that leads to the wrapper's file name.
    ApplicationInfo applicationFor(const std::string& bundleID) const;
};

} // namespace tavrik
