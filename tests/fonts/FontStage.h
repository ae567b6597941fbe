#pragma once

#include "fonts/FontManager.h"
#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/PathRules.h"
#include "platform/RecordingClock.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "practice/session/VirtualSession.h"
#include "support/FailingFileManager.h"
#include "support/LogRecorder.h"
#include "support/practice/PracticeVolume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/IconManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace tavrik::test {

/// The managers of one run of the program.
struct FontProgram {
    explicit FontProgram(Mac& on) : mac(on) {}

    Mac& mac;
    SettingsManager settings{mac};
    UnsupportedAppsManager unsupported;
    IconManager icons{mac};
    DatabaseManager database{mac, settings, icons, unsupported};
    DockManager dock{mac, settings};
    FontManager fonts{mac, settings, database, dock};
};

/// Every title by what it belongs to: "folder 17", "app 4", "tile 0".
using Titles = std::map<std::string, std::string>;

/// A line for each title that is not as expected.
inline std::vector<std::string> differences(const Titles& found, const Titles& expected) {
    std::vector<std::string> lines;
    EXPECT_EQ(found.size(), expected.size());
    for (const auto& [place, title] : expected)
        if (const auto there = found.find(place); there == found.end() || there->second != title)
            lines.push_back(place + ": " + (there == found.end() ? "none" : there->second) + ", not " + title);
    return lines;
}

/// A furnished Mac in virtual time, with folders in every mixture of cases, and the program on it.
class FontStage : public testing::Test {
protected:
    FontStage() {
        const char* const kNames[] = {"iTunes & macOS 2", "Music Apps", "eBooks ÉTÉ", "IPHONE TOOLS"};
        for (const LaunchpadItem& item : volume.launchpadItems())
            if (item.type == 2 && folders.size() < std::size(kNames)) {
                nameFolder(item.row, kNames[folders.size()]);
                folders.push_back(item.row);
            }
        EXPECT_GE(folders.size(), 3u);
        first = titles();
        start();
    }

    /// The program anew, as after a kill.
    void start() { program.emplace(mac); }

    FontManager& fonts() { return program->fonts; }

    /// No style is the reset.
    void change(const std::string& style) {
        style.empty() ? fonts().resetAllFonts() : fonts().applyFont(style);
    }

    bool execute(const std::string& sql) {
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        return database && database->execute(sql.c_str());
    }

    void nameFolder(std::int64_t row, const std::string& title) {
        EXPECT_TRUE(
            execute("UPDATE groups SET title = '" + title + "' WHERE item_id = " + std::to_string(row)));
    }

    std::string folderTitle(std::int64_t row) { return titles().at("folder " + std::to_string(row)); }

    /// Of everything that leads somewhere: the capitals of an application that is gone are not kept.
    Titles titles() {
        Titles all;
        for (const LaunchpadItem& item : volume.launchpadItems()) {
            if (item.type == 2)
                all["folder " + std::to_string(item.row)] = item.title;
            if (item.type == 4 && mac.files.exists(item.path))
                all["app " + std::to_string(item.row)] = item.title;
        }
        for (const PinnedTile& tile : volume.pinnedTiles())
            all["tile " + std::to_string(all.size())] = tile.label;
        return all;
    }

    Titles firstIn(const std::string& style) {
        Titles styled = first;
        for (auto& [place, title] : styled)
            title = fonts().fontReplacer().convert(title, style);
        return styled;
    }

    PracticeVolume volume;
    RecordingClock clock;
    practice::VirtualSession session{volume.root(), clock};
    practice::PracticeMac practice{volume.root(), {.clock = &clock, .tools = &session}};
    FailingFileManager files{practice.mac().files};
    Mac& own = practice.mac();
    Mac mac{own.volume,   files,       own.bookmarks, own.workspace, session,   own.notifications,
            own.defaults, own.machine, clock,         own.alerts,    own.random};
    const MacPath dockFile = dockPreferencesPath(practice::kHome);
    std::optional<FontProgram> program;
    std::vector<std::int64_t> folders;
    LogRecorder log;
    Titles first;
};

} // namespace tavrik::test
