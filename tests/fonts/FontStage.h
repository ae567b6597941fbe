#pragma once

#include "fonts/FontManager.h"
#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/IconManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace tavrik::test {

inline const std::string kBold = "Mathematical Bold", kScript = "Mathematical Script", kCaps = "Small Caps";

using Styles = std::vector<std::string>;

/// The managers of one run of the program.
struct FontProgram {
    Mac& mac;
    SettingsManager settings{mac};
    UnsupportedAppsManager unsupported;
    IconManager icons{mac};
    DatabaseManager database{mac, settings, icons, unsupported};
    DockManager dock{mac, settings};
    FontManager fonts{mac, settings, database, dock};
};

/// A furnished Mac in virtual time, with folders in every mixture of cases, and the program on it.
class FontStage : public testing::Test, protected VirtualMac {
protected:
    /// Every title by what it belongs to: "folder 17", "app 4", "tile 0".
    using Titles = std::map<std::string, std::string>;

    FontStage() {
        program.emplace(mac);
        for (const LaunchpadItem& item : volume.launchpadItems())
            if (item.type == 2)
                folders.push_back(RowID{item.row});
        nameFolder(0, "iTunes & macOS 2");
        nameFolder(1, "eBooks ÉTÉ");
        nameFolder(2, "IPHONE TOOLS");
        first = titles();
    }

    FontManager& fonts() { return program->fonts; }

    std::string styled(const std::string& text, const std::string& style) {
        return fonts().fontReplacer().convert(text, style);
    }

    /// To each in turn; no style is the reset.
    void change(const Styles& styles) {
        for (const std::string& style : styles)
            style.empty() ? fonts().resetAllFonts() : fonts().applyFont(style);
    }

    /// Changes, and expects the style in every name.
    void show(const std::string& style) {
        change({style});
        Titles expected = first;
        for (auto& [place, title] : expected)
            title = styled(title, style);
        EXPECT_THAT(titles(), testing::ContainerEq(expected)) << "in '" << style << "'";
    }

    sqlite::Connection openDatabase() {
        return *sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    }

    void execute(const std::string& sql) { ASSERT_TRUE(openDatabase().execute(sql.c_str())); }

    /// What the user types while a style is shown.
    void nameFolder(std::size_t folder, const std::string& title, const std::string& style = {}) {
        const std::string row = std::to_string(static_cast<std::int64_t>(folders.at(folder)));
        execute("UPDATE groups SET title = '" + styled(title, style) + "' WHERE item_id = " + row);
        first["folder " + row] = title;
    }

    /// Of everything that leads somewhere: the capitals of an application that is gone are not kept.
    Titles titles() {
        Titles all;
        for (const LaunchpadItem& item : volume.launchpadItems()) {
            const bool isApp = item.type == 4 && mac.files.exists(item.path);
            if (isApp || item.type == 2)
                all[(isApp ? "app " : "folder ") + std::to_string(item.row)] = item.title;
        }
        for (const PinnedTile& tile : volume.pinnedTiles())
            all["tile " + std::to_string(all.size())] = tile.label;
        return all;
    }

    const MacPath dockFile = dockPreferencesPath(practice::kHome);
    std::optional<FontProgram> program;
    std::vector<RowID> folders;
    LogRecorder log;
    Titles first;
};

} // namespace tavrik::test
