#include "../changes/apply/ApplyStage.h"
#include "maintenance/RemoveEverything.h"
#include "platform/practice/Layout.h"
#include "support/practice/Killing.h"

#include <cstdlib>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace tavrik::test {

namespace {

const std::string kBold = "Mathematical Bold";
const std::string kSmallCaps = "Small Caps"; ///< takes the capitals
const MacPath kWrappers = practice::kHome / "Applications/Tavrik";

class Removal : public ApplyStage {
protected:
    /// The first backup and the last are as good as the first look.
    void TearDown() override {
        const auto backups = program->backups.listBackups();
        if (isArrangedAnew || backups.empty())
            return;
        expectRestores(backups.front());
        expectRestores(backups.back());
    }

    bool isArrangedAnew = false; ///< by the person

    RemoveEverything removal() { return RemoveEverything(program->applyServices); }

    /// Four applications, one with a tile, one in a folder, one with the hidden flag.
    void restyle() {
        int number = 0;
        for (const std::string& bundleID : {kAtlas, kInkwell, kFerrule, kMissionControl})
            add(bundleID, ++number);
        expectApplied();
    }

    void style(const std::string& font) {
        pending().setPendingFont(font);
        expectApplied();
    }

    RemoveEverything::Outcome remove() {
        const auto outcome = removal().removeFromSystem();
        EXPECT_TRUE(outcome) << outcome.error().description;
        return outcome ? *outcome : RemoveEverything::Outcome();
    }

    /// The look of the beginning, and nothing to tell.
    void expectUntouched() {
        EXPECT_THAT(*removal().traces(), IsEmpty());
        EXPECT_EQ(volume.launchpadItems(), firstRows);
        EXPECT_EQ(volume.pinnedTiles(), firstTiles);
        EXPECT_TRUE(*practice::drawPicture(volume.root()) == firstPicture);
        EXPECT_FALSE(mac.files.exists(kWrappers));
        SettingsManager& settings = program->settings;
        EXPECT_TRUE(settings.getAllMappings().empty() && settings.getAllSwapRecords().empty() &&
                    settings.getAllSelectedIcons().empty() && !settings.getCurrentFontState());
    }

    std::size_t restarts() const {
        return static_cast<std::size_t>(std::ranges::count(log.lines(), ">>> DOCK RESTART: Complete\n"));
    }
};

/// Every so many changes; all of them with TAVRIK_KILL_STRIDE=1.
std::size_t stride() {
    const char* wanted = std::getenv("TAVRIK_KILL_STRIDE");
    return wanted ? std::strtoul(wanted, nullptr, 10) : 13;
}

} // namespace

TEST_F(Removal, LeadsBackToTheBeginningFromEveryHistory) {
    const std::pair<const char*, std::function<void()>> histories[] = {
        {"wrappers", [&] { restyle(); }},
        {"wrappers and names",
         [&] {
             restyle();
             style(kSmallCaps);
             style(kBold);
         }},
        {"names alone", [&] { style(kSmallCaps); }},
        {"one taken back, one icon changed",
         [&] {
             restyle();
             chooseNone(kAtlas);
             add(kInkwell, 9);
             style(kBold);
         }},
        {"restored, and restyled again",
         [&] {
             restyle();
             ASSERT_TRUE(program->backups.restoreBackup(*program->backups.find("Original State")));
             program->launchpad.restartDock();
             clock.sleep(std::chrono::seconds(5));
             style(kSmallCaps);
             restyle();
         }},
        {"a wrapper gone from the disk",
         [&] {
             restyle();
             clock.sleep(std::chrono::seconds(5)); // the Dock has started, and will not look again
             ASSERT_TRUE(mac.files.remove(kWrappers / "Atlas.app"));
         }},
        {"what the settings knew is lost",
         [&] {
             restyle();
             style(kBold);
             ASSERT_TRUE(program->settings.clearAfterRestore({}));
         }},
        {"a killed creation",
         [&] {
             add(kAtlas, 5);
             EXPECT_TRUE(isKilledBefore(*this, 40, [this] { program->apply.applyChanges(); }));
             start();
             pending().clearAllPendingChanges();
         }},
    };
    for (const auto& [name, history] : histories) {
        SCOPED_TRACE(name);
        history();
        EXPECT_THAT(*removal().traces(), testing::Not(IsEmpty()));
        log.clear();
        EXPECT_THAT(remove().traces, IsEmpty());
        expectUntouched();
        EXPECT_EQ(restarts(), 1U);
    }
    const std::size_t backups = program->backups.listBackups().size();
    EXPECT_EQ(remove().backup, "") << "there was nothing left to do";
    EXPECT_EQ(program->backups.listBackups().size(), backups);
}

TEST_F(Removal, AKillAnywhereAndARepeatReachTheSame) {
    const auto style = [this](const std::string& font) { pending().setPendingFont(font); };
    std::size_t points = 0;
    bool wasKilled = true;
    for (std::size_t change = 1 + stride() / 2; wasKilled && !HasFailure(); change += stride()) {
        SCOPED_TRACE("killed before change " + std::to_string(change));
        restyle();
        style(change % 2 == 0 ? kSmallCaps : kBold);
        // Sometimes an apply was killed before.
        ignoreFailure(
            isKilledBefore(*this, change % 3 == 0 ? change : 1000, [this] { program->apply.applyChanges(); }));
        start();
        wasKilled = isKilledBefore(*this, change, [this] { ignoreFailure(removal().removeFromSystem()); });
        points += wasKilled;
        start();
        program->backups.removeLeftovers();
        clock.sleep(std::chrono::seconds(5));
        EXPECT_THAT(remove().traces, IsEmpty());
        expectUntouched();
        pending().clearAllPendingChanges();
    }
    EXPECT_GT(points, 3U) << "too few changes were seen to mean anything";
}

TEST_F(Removal, LeavesWhatIsOthersAndFollowsNoLink) {
    isArrangedAnew = true;
    restyle();
    const FileTree apps = treeOf(mac.files, MacPath("/Applications"));
    ASSERT_TRUE(mac.files.create(kWrappers / "notes.txt", bytesOf("mine")));
    ASSERT_TRUE(mac.files.createLink(kWrappers / "Planted.app", "/Applications"));
    ASSERT_TRUE(mac.files.createFolder(kWrappers / "Real.app/Contents"));
    ASSERT_TRUE(mac.files.createFolder(kWrappers / "Stray.app"));
    ASSERT_TRUE(mac.files.createLink(kWrappers / "Stray.app/Contents", "/Applications/Gone.app/Contents"));
    // Made by a person who dragged the wrapper out of Launchpad.
    plist::Value dock = *program->dock.readDockPlist();
    auto& tiles = *dock.as<plist::Dictionary>()->at("persistent-apps").as<plist::Array>();
    const auto atlas = std::ranges::find(firstTiles, kAtlas, &PinnedTile::bundleID) - firstTiles.begin();
    tiles.push_back(tiles[static_cast<std::size_t>(atlas)]);
    ASSERT_TRUE(program->dock.writeDockPlist(dock));

    const auto outcome = remove();
    EXPECT_THAT(outcome.traces, IsEmpty());
    EXPECT_THAT(outcome.done,
                Contains(HasSubstr("holds what is not Tavrik's: Planted.app, Real.app, notes.txt")));
    EXPECT_THAT(*mac.files.list(kWrappers), ElementsAre("Planted.app", "Real.app", "notes.txt"));
    EXPECT_THAT(differences(apps, treeOf(mac.files, MacPath("/Applications"))), IsEmpty());
    auto expected = firstTiles;
    expected.push_back(firstTiles[static_cast<std::size_t>(atlas)]);
    EXPECT_EQ(volume.pinnedTiles(), expected);
    EXPECT_EQ(volume.launchpadItems(), firstRows);
}

TEST_F(Removal, PutsBackTheRowsOfAnApplicationThatIsAway) {
    restyle();
    const MacPath atlas = std::ranges::find(firstRows, kAtlas, &LaunchpadItem::bundleID)->path;
    const MacPath away("/away.app");
    ASSERT_TRUE(mac.files.move(atlas, away));
    EXPECT_THAT(remove().traces, IsEmpty());
    ASSERT_TRUE(mac.files.move(away, atlas));
    expectUntouched();
}

TEST_F(Removal, LeavesStyledNamesThatAPersonGave) {
    isArrangedAnew = true;
    const auto execute = [this](const std::string& sql) {
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        return database && database->execute(sql.c_str());
    };
    const auto folder = std::ranges::find(firstRows, 2, &LaunchpadItem::type);
    const std::string given = styled("My Games", kBold);
    ASSERT_TRUE(
        execute("UPDATE groups SET title = '" + given + "' WHERE item_id = " + std::to_string(folder->row)));
    EXPECT_THAT(*removal().traces(), IsEmpty());
    restyle();
    EXPECT_THAT(remove().traces, IsEmpty());
    EXPECT_EQ(volume.launchpadItems()[static_cast<std::size_t>(folder - firstRows.begin())].title, given);
}

TEST_F(Removal, KeepsIconsAndWhatIsStaged) {
    restyle();
    add(kCinder, 7);
    pending().setPendingFont(kBold);
    const StagedChanges staged = pending().staged();
    const FileTree icons = treeOf(mac.files, program->iconStore.iconCacheURL());
    EXPECT_THAT(remove().traces, IsEmpty());
    expectUntouched();
    EXPECT_THAT(differences(icons, treeOf(mac.files, program->iconStore.iconCacheURL())), IsEmpty());
    start();
    ASSERT_TRUE(pending().recover());
    EXPECT_EQ(pending().staged(), staged);
    expectApplied();
    EXPECT_EQ(lookOf(kCinder).icon, 7);
}

TEST_F(Removal, IsRefusedWithNothingChanged) {
    restyle();
    const MacPath backups = program->backups.backupsBaseURL();
    const MacPath moved = kWrappers.parent() / "Moved";
    std::optional<sqlite::Connection> lock;

    const struct {
        const char* sentence;
        std::function<bool()> begin;
        std::function<bool()> end;
    } cases[] = {
        {"locked",
         [&] {
             lock = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
             return lock && lock->execute("BEGIN IMMEDIATE");
         },
         [&] {
             lock.reset();
             return true;
         }},
        {"No backup was made",
         [&] {
             files.setRule([&](const FileOperation& operation) {
                 return operation.name == "create" && operation.path.isInside(backups) ? std::optional(ENOSPC)
                                                                                       : std::nullopt;
             });
             return true;
         },
         [&] {
             files.failNothing();
             return true;
         }},
        {"is a link or a file",
         [&] { return mac.files.move(kWrappers, moved) && mac.files.createLink(kWrappers, moved.string()); },
         [&] { return mac.files.remove(kWrappers) && mac.files.move(moved, kWrappers); }},
    };

    for (const auto& [sentence, begin, end] : cases) {
        ASSERT_TRUE(begin());
        const auto rows = volume.launchpadItems();
        const FileTree before = treeOf(mac.files, practice::kHome);
        const auto outcome = removal().removeFromSystem();
        ASSERT_FALSE(outcome) << sentence;
        EXPECT_THAT(outcome.error().description, HasSubstr(sentence));
        EXPECT_THAT(differences(before, treeOf(mac.files, practice::kHome)), IsEmpty());
        EXPECT_EQ(volume.launchpadItems(), rows);
        ASSERT_TRUE(end());
    }
}

TEST_F(Removal, DeletesWhatTheProgramKeepsOnlyWhenNothingIsLeft) {
    restyle();
    const MacPath support = program->settings.appSupportURL();
    ASSERT_TRUE(program->hiddenThemeIcons.hide("some-theme", "a.png"));
    FileTree before = treeOf(mac.files, support);
    const Status refused = removal().removeSupportFolder();
    ASSERT_FALSE(refused);
    EXPECT_THAT(refused.error().description, HasSubstr("needed until the last trace is removed"));
    EXPECT_THAT(differences(before, treeOf(mac.files, support)), IsEmpty());

    remove();
    const MacPath moved = support.parent() / "moved";
    ASSERT_TRUE(mac.files.move(support, moved) && mac.files.createLink(support, moved.string()));
    before = treeOf(mac.files, moved);
    EXPECT_FALSE(removal().removeSupportFolder());
    EXPECT_THAT(differences(before, treeOf(mac.files, moved)), IsEmpty());
    ASSERT_TRUE(mac.files.remove(support) && mac.files.move(moved, support));

    ASSERT_TRUE(mac.files.createLink(support / "Themes/planted", "/Applications"));
    const FileTree apps = treeOf(mac.files, MacPath("/Applications"));
    start();
    ASSERT_TRUE(isKilledBefore(*this, 4, [this] { ignoreFailure(removal().removeSupportFolder()); }));
    start();
    const Status deleted = removal().removeSupportFolder();
    EXPECT_TRUE(deleted) << deleted.error().description;
    EXPECT_FALSE(mac.files.exists(support));
    const auto preferences = *mac.files.list(practice::kPreferencesFolder);
    EXPECT_THAT(preferences, testing::Not(Contains("com.tavrik.Tavrik.plist")));
    EXPECT_THAT(preferences, testing::Not(Contains("com.apple.dock.backup.plist")));
    EXPECT_THAT(differences(apps, treeOf(mac.files, MacPath("/Applications"))), IsEmpty());
    program->settings.setSelectedIcon(kAtlas, 1);
    EXPECT_FALSE(mac.files.exists(support)) << "nothing brings a file back";
}

} // namespace tavrik::test
