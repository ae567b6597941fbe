#include "icons/IconStore.h"

#include "IconStoreStage.h"
#include "icons/IconFiles.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <thread>

namespace tavrik::test {

namespace {

using testing::ElementsAre;
using testing::Not;

struct IconStoreTest : testing::Test {
    IconStoreStage stage;
    IconProgram program{stage};
    IconStore& store{program.store};

    void putBoth() {
        for (const MacPath& folder : {stage.permanent, stage.pending}) {
            stage.put(folder / "icon_0.png", 1);
            stage.put(folder / "icon_1.png", 2);
        }
    }
};

} // namespace

TEST(IconFiles, AnIconIsKnownByItsNumberOnly) {
    const std::map<std::string, std::optional<int>> expected{
        {"icon_0.png", 0},
        {"icon_999999999.png", 999'999'999},
        {"icon_007.png", 7},
        {"icon_1000000000.png", {}},
        {"icon_3_thumb.png", {}},
        {"icon_3_thumb@2x.png", {}},
        {"icon_x.png", {}},
        {"icon_.png", {}},
        {"icon_.pn", {}},
        {"icon_-1.png", {}},
        {"icon_+1.png", {}},
        {"temp_icon_1.png", {}},
        {"icon_3.png.new", {}},
        {"Icon_3.png", {}},
        {"icon_4294967296.png", {}},
        {std::string("icon_1\0.png", 11), {}},
    };
    for (const auto& [name, index] : expected)
        EXPECT_EQ(iconIndex(name), index) << name;
}

TEST_F(IconStoreTest, TheNextNumberIsAboveEveryOneInEitherFolder) {
    EXPECT_EQ(store.nextAvailableIndex(kAtlas), 0);
    for (const char* name : {"icon_0.png", "icon_1.png", "icon_3_thumb.png", "icon_x.png", "icon_8.png.new"})
        stage.putFile(stage.permanent / name, 1);
    stage.putFile(stage.pending / "icon_2.png", 1);

    const LogRecorder log;
    EXPECT_EQ(store.nextAvailableIndex(kAtlas), 3);
    EXPECT_THAT(log.lines(),
                ElementsAre("  Found permanent icon_0", "  Found permanent icon_1", "  Found pending icon_2",
                            "📊 Next available index for com.example.atlas: 3 (highest found: 2)"));
}

TEST_F(IconStoreTest, ASavedIconIsWholePrivateAndInMemory) {
    const LogRecorder log;
    // What an earlier icon of this number left must not stand for the new one.
    stage.putFile(stage.pending / "icon_0_thumb.png", 9);
    stage.putFile(stage.pending / "icon_0.png.new", 9);
    const auto saved = store.savePendingIcon(IconStoreStage::picture(5), kAtlas);
    ASSERT_EQ(saved, stage.pending / "icon_0.png");
    EXPECT_TRUE(log.has("💾 Saved pending icon to: " + saved->string() + " with index 0"));
    EXPECT_THAT(stage.colours(stage.pending), ElementsAre(5));
    EXPECT_EQ(stage.disk.attributes(*saved)->permissions, 0600u);
    EXPECT_EQ(stage.disk.attributes(stage.pending)->permissions, 0700u);
    EXPECT_THAT(*stage.disk.list(stage.pending), ElementsAre("icon_0.png"));

    const std::size_t before = stage.mac.files.count();
    EXPECT_EQ(program.cache.loadImage(*saved).pixelColor(0, 0).red(), 5);
    EXPECT_EQ(stage.mac.files.count(), before);

    EXPECT_EQ(store.savePendingIcon(QImage(), kAtlas), std::nullopt);
    EXPECT_TRUE(log.has("Failed to convert icon to PNG"));
}

TEST(IconStore, ASaveThatIsStoppedAnywhereHarmsNoIcon) {
    stopAtEveryOperation(
        [](IconStoreStage& stage) {
            stage.put(stage.permanent / "icon_0.png", 1);
            stage.put(stage.pending / "icon_1.png", 2);
        },
        [](IconProgram& program) { program.store.savePendingIcon(IconStoreStage::picture(3), kAtlas); },
        [](IconStoreStage& stage) {
            EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1));
            EXPECT_THAT(stage.colours(stage.pending), testing::AnyOf(ElementsAre(2), ElementsAre(2, 3)));

            IconProgram again(stage);
            const auto saved = again.store.savePendingIcon(IconStoreStage::picture(4), kAtlas);
            ASSERT_TRUE(saved);
            EXPECT_EQ(stage.colour(*saved), 4);
            EXPECT_EQ(stage.colours(stage.pending).front(), 2);
            EXPECT_THAT(*stage.disk.list(stage.pending), testing::Each(Not(testing::EndsWith(".new"))));
        });
}

TEST_F(IconStoreTest, SavesFromSeveralThreadsBesideATransferLoseNothing) {
    for (int colour = 1; colour <= 5; ++colour)
        stage.put(stage.pending / iconFileName(colour), colour);
    std::vector<std::thread> threads;
    for (int first : {10, 20, 30}) {
        threads.emplace_back([this, first] {
            for (int colour = first; colour < first + 5; ++colour)
                EXPECT_TRUE(store.savePendingIcon(IconStoreStage::picture(colour), kAtlas));
        });
    }
    for (int number = 1; number <= 5; ++number)
        EXPECT_TRUE(store.transferPendingIcon(stage.pending / iconFileName(number), kAtlas));
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1, 2, 3, 4, 5));
    EXPECT_THAT(stage.colours(stage.pending),
                testing::UnorderedElementsAre(10, 11, 12, 13, 14, 20, 21, 22, 23, 24, 30, 31, 32, 33, 34));
}

TEST(IconStore, ADeletionThatIsStoppedAnywhereTakesNoOtherIcon) {
    const auto setup = [](IconStoreStage& stage) {
        for (int i = 0; i < 4; ++i)
            stage.put(stage.permanent / iconFileName(i), i + 1);
    };
    stopAtEveryOperation(
        setup, [](IconProgram& program) { program.store.deleteIconAndReindex(kAtlas, 1); },
        [](IconStoreStage& stage) {
            const auto all = ElementsAre(1, 2, 3, 4);
            const auto others = ElementsAre(1, 3, 4);
            EXPECT_THAT(stage.colours(stage.permanent), testing::AnyOf(all, others));
            IconProgram again(stage);
            if (stage.colours(stage.permanent).size() == 4)
                again.store.deleteIconAndReindex(kAtlas, 1);
            const auto icons = again.store.renumber(kAtlas);
            EXPECT_THAT(icons, ElementsAre(stage.permanent / "icon_0.png", stage.permanent / "icon_1.png",
                                           stage.permanent / "icon_2.png"));
            EXPECT_THAT(stage.colours(stage.permanent), others);
        });
}

TEST_F(IconStoreTest, DeletionClosesTheGapWithTheThumbnailsAndIgnoresPlacesOutside) {
    putBoth();
    const FileTree before = treeOf(stage.disk, stage.support);
    for (const int outside : {-1, 2, 1'000'000})
        store.deleteIconAndReindex(kAtlas, outside);
    EXPECT_THAT(differences(before, treeOf(stage.disk, stage.support)), ElementsAre());

    store.deleteIconAndReindex(kAtlas, 0);
    EXPECT_THAT(*stage.disk.list(stage.permanent),
                ElementsAre("icon_0.png", "icon_0_thumb.png", "icon_0_thumb@2x.png"));
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(2));
    EXPECT_THAT(stage.colours(stage.pending), ElementsAre(1, 2));
}

TEST(IconStore, ARenumberingThatIsStoppedAnywhereKeepsAllIconsInTheirOrder) {
    const std::vector<std::vector<std::string>> folders{
        {"icon_0.png", "temp_icon_2.png", "icon_9.png"},
        {"icon_0.png", "temp_icon_0.png", "icon_1.png", "icon_01.png", "icon_7.png"},
    };
    for (const auto& names : folders) {
        std::vector<int> order;
        for (std::size_t i = 1; i <= names.size(); ++i)
            order.push_back(static_cast<int>(i));
        stopAtEveryOperation(
            [&](IconStoreStage& stage) {
                for (std::size_t i = 0; i < names.size(); ++i)
                    stage.put(stage.permanent / names[i], order[i]);
                stage.putFile(stage.permanent / "icon_2_thumb.png", 99);
            },
            [](IconProgram& program) { program.store.renumber(kAtlas); },
            [&](IconStoreStage& stage) {
                EXPECT_EQ(stage.colours(stage.permanent), order);
                IconProgram again(stage);
                const auto icons = again.store.renumber(kAtlas);
                EXPECT_EQ(icons.back(), stage.permanent / iconFileName(order.back() - 1));
                EXPECT_EQ(stage.colours(stage.permanent), order);
            });
    }
}

TEST_F(IconStoreTest, ThumbnailsThatAreBeingMadeNeverShowAnotherIcon) {
    for (int round = 0; round < 10; ++round) {
        for (int i = 0; i < 6; ++i)
            stage.putFile(stage.permanent / iconFileName(i), i + 1);
        for (const MacPath& icon : store.listIcons(kAtlas))
            program.cache.generateThumbnails(icon);
        std::this_thread::sleep_for(std::chrono::microseconds(round * 300));
        store.deleteIconAndReindex(kAtlas, 0);
        program.cache.waitForThumbnails();
        EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(2, 3, 4, 5, 6));
        for (int i = 0; i < 5; ++i) {
            const QImage small = program.cache.thumbnail(stage.permanent / iconFileName(i), ThumbnailSize::x1);
            EXPECT_EQ(small.pixelColor(0, 0).red(), i + 2);
        }
        while (!store.listIcons(kAtlas).empty())
            store.deleteIconAndReindex(kAtlas, 0);
    }
}

TEST_F(IconStoreTest, ATransferredIconComesLastUnderItsOwnNumberWhereThatIsFree) {
    stage.put(stage.permanent / "icon_0.png", 1);
    stage.put(stage.permanent / "icon_3.png", 2);
    stage.put(stage.pending / "icon_3.png", 3);
    stage.put(stage.pending / "icon_6.png", 4);
    EXPECT_EQ(store.transferPendingIcon(stage.pending / "icon_3.png", kAtlas), stage.permanent / "icon_4.png");
    EXPECT_EQ(store.transferPendingIcon(stage.pending / "icon_6.png", kAtlas), stage.permanent / "icon_6.png");
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1, 2, 3, 4));

    const LogRecorder log;
    EXPECT_EQ(store.transferPendingIcon(stage.pending / "icon_6.png", kAtlas), std::nullopt);
    EXPECT_TRUE(
        log.has("⚠️ WARNING: Failed to transfer pending icon at " + stage.pending.string() + "/icon_6.png"));
    EXPECT_TRUE(store.removePendingFolderIfEmpty(kAtlas));
    EXPECT_FALSE(stage.disk.exists(stage.pending));
}

TEST_F(IconStoreTest, ASingleDeletionTakesTheNumberAndItsThumbnails) {
    putBoth();
    const LogRecorder log;
    EXPECT_TRUE(store.deletePermanentIcon(kAtlas, 0));
    EXPECT_TRUE(store.deletePermanentIcon(kAtlas, 0));
    EXPECT_EQ(log.count("  Deleted: icon_0.png"), 1u);
    EXPECT_THAT(*stage.disk.list(stage.permanent),
                ElementsAre("icon_1.png", "icon_1_thumb.png", "icon_1_thumb@2x.png"));

    stage.mac.files.failOn("remove", stage.permanent / "icon_1.png", EACCES);
    EXPECT_FALSE(store.deletePermanentIcon(kAtlas, 1));
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(2));
}

namespace {

/// Every operation that takes an identifier or a path made of it.
void tryEverything(IconStore& store, const std::string& bundleID) {
    ignoreFailure(store.savePendingIcon(IconStoreStage::picture(7), bundleID).has_value());
    store.nextAvailableIndex(bundleID);
    EXPECT_THAT(store.listIcons(bundleID), ElementsAre());
    EXPECT_THAT(store.listPendingIcons(bundleID), ElementsAre());
    store.deleteIconAndReindex(bundleID, 0);
    EXPECT_THAT(store.renumber(bundleID), ElementsAre());
    EXPECT_FALSE(store.deletePermanentIcon(bundleID, 1));
    const MacPath pending = store.pendingIconsBaseURL() / bundleID / "icon_1.png";
    EXPECT_EQ(store.transferPendingIcon(pending, bundleID), std::nullopt);
    store.deletePendingIcon(pending);
    store.cleanUpPendingIcons(bundleID);
    EXPECT_FALSE(store.removePendingFolderIfEmpty(bundleID));
}

} // namespace

TEST_F(IconStoreTest, RefusesEveryIdentifierThatIsNoFolderName) {
    putBoth();
    for (const char* folder : {"IconCache", "IconCache/a/b", "PendingChanges", "PendingChanges/Icons/a/b", "x"})
        stage.put(stage.support / folder / "icon_1.png", 1);
    const FileTree before = treeOf(stage.disk, stage.support);
    const std::vector<std::string> names{"",   ".",   "..",     "a/b",          "../x",
                                         "/x", "a/.", "../../", "a\nb",         std::string("a\0b", 3),
                                         "-x", "a/",  "\xff",   "../" + kAtlas, std::string(256, 'a')};
    for (const std::string& name : names) {
        const LogRecorder log;
        tryEverything(store, name);
        EXPECT_TRUE(log.has("  ❌ SAFETY: Refusing to delete - invalid directory structure")) << name;
        EXPECT_FALSE(store.ownsPath(store.iconCacheURL() / name / "icon_1.png", name)) << name;
    }
    EXPECT_THAT(differences(before, treeOf(stage.disk, stage.support)), ElementsAre());
}

TEST_F(IconStoreTest, TouchesNothingBehindAPlantedLink) {
    for (const MacPath& link : {stage.support / "PendingChanges", stage.support / "PendingChanges/Icons",
                                stage.pending, stage.support / "IconCache", stage.permanent}) {
        SCOPED_TRACE(link.string());
        IconStoreStage clean;
        IconProgram other(clean);
        for (const char* folder : {"", "Icons", kAtlas.c_str(), "Icons/com.example.atlas"})
            clean.put(MacPath("/Users/victim") / folder / "icon_1.png", 1);
        const FileTree before = treeOf(clean.disk, MacPath("/Users/victim"));
        ignoreFailure(clean.disk.remove(link));
        ASSERT_TRUE(clean.disk.createFolder(link.parent()));
        ASSERT_TRUE(clean.disk.createLink(link, "/Users/victim"));

        ignoreFailure(other.store.savePendingIcon(IconStoreStage::picture(7), kAtlas).has_value());
        other.store.deleteIconAndReindex(kAtlas, 0);
        ignoreFailure(other.store.deletePermanentIcon(kAtlas, 1));
        ignoreFailure(other.transfer.begin({{kAtlas, {clean.pending / "icon_1.png"}, {1}}}));
        other.transfer.run(kAtlas);
        other.store.deletePendingIcon(clean.pending / "icon_1.png");
        other.store.removeUnnamedPendingIcons({});
        other.store.cleanUpPendingIcons(kAtlas);
        other.store.cleanUpAllPendingIcons();
        EXPECT_THAT(differences(before, treeOf(clean.disk, MacPath("/Users/victim"))), ElementsAre());
    }
}

TEST_F(IconStoreTest, APendingIconIsDeletedOnlyByItsOwnPath) {
    putBoth();
    const LogRecorder log;
    for (const std::string& path :
         {stage.permanent.string() + "/icon_1.png", stage.pending.string(),
          stage.pending.string() + "/../" + kAtlas + "/icon_1.png", stage.pending.string() + "//icon_1.png",
          stage.pending.string() + "/icon_1_thumb.png"})
        store.deletePendingIcon(MacPath(path));
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1, 2));
    EXPECT_THAT(stage.colours(stage.pending), ElementsAre(1, 2));
    EXPECT_FALSE(log.mentions("🗑️"));

    store.deletePendingIcon(stage.pending / "icon_0.png");
    EXPECT_TRUE(
        log.has("🗑️ Deleted pending icon and cleared cache: " + stage.pending.string() + "/icon_0.png"));
    EXPECT_THAT(*stage.disk.list(stage.pending),
                ElementsAre("icon_1.png", "icon_1_thumb.png", "icon_1_thumb@2x.png"));
}

TEST_F(IconStoreTest, RemovesPendingIconsThatNothingNames) {
    putBoth();
    const MacPath empty = stage.support / "PendingChanges/Icons/com.example.gone";
    stage.put(empty / "icon_4.png", 4);
    for (const char* name : {"icon_3.png.new", "icon_5_thumb.png", "notes.txt"})
        stage.putFile(stage.pending / name, 3);
    ASSERT_TRUE(stage.disk.createLink(empty.parent() / "com.example.link", stage.permanent.string()));

    store.removeUnnamedPendingIcons({stage.pending / "icon_1.png"});
    EXPECT_THAT(*stage.disk.list(stage.pending),
                ElementsAre("icon_1.png", "icon_1_thumb.png", "icon_1_thumb@2x.png", "notes.txt"));
    EXPECT_THAT(*stage.disk.list(empty.parent()), ElementsAre(kAtlas));
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1, 2));
}

TEST_F(IconStoreTest, CleaningUpLeavesThePermanentIconsAndSaysWhatFailed) {
    putBoth();
    const LogRecorder log;
    stage.mac.files.failOn("remove", stage.pending, EACCES);
    store.cleanUpAllPendingIcons();
    EXPECT_TRUE(log.has("⚠️ Failed to cleanup pending icons for com.example.atlas"));
    stage.mac.files.failNothing();

    store.cleanUpPendingIcons(kAtlas);
    EXPECT_FALSE(stage.disk.exists(stage.pending));
    store.cleanUpAllPendingIcons();
    EXPECT_FALSE(stage.disk.exists(stage.pending.parent()));
    EXPECT_TRUE(log.has("🧹 Cleaned up pending icons for: com.example.atlas"));
    EXPECT_TRUE(log.has("🧹 Cleaned up all pending icons"));
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1, 2));
    EXPECT_TRUE(store.savePendingIcon(IconStoreStage::picture(1), kAtlas));
}

} // namespace tavrik::test
