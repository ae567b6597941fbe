#include "icons/IconStore.h"

#include "IconStage.h"
#include "icons/IconFiles.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"

#include <numeric>
#include <thread>

namespace tavrik::test {

namespace {

using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::Not;

struct IconStoreTest : testing::Test {
    IconStage stage;
    IconProgram program{stage};
    IconStore& store{program.store};

    void putBoth() {
        for (const MacPath& folder : {stage.permanent, stage.pending}) {
            stage.put(folder / "icon_0.png", 1);
            stage.put(folder / "icon_1.png", 2);
        }
    }
};

/// Every operation that takes an identifier or a path made of it. Whether one said that it had done its work.
bool tryEverything(IconProgram& program, const std::string& bundleID) {
    IconStore& store = program.store;
    const MacPath pending = store.pendingIconsBaseURL() / bundleID / "icon_1.png";
    bool done = store.savePendingIcon(picture(7), bundleID).has_value();
    store.deleteIconAndReindex(bundleID, 0);
    done = !store.renumber(bundleID).empty() || done;
    done = store.deletePermanentIcon(bundleID, 1) || done;
    done = store.transferPendingIcon(pending, bundleID) || done;
    done = program.transfer.begin({{bundleID, {pending}, {1}}}) || done;
    program.transfer.run(bundleID);
    store.deletePendingIcon(pending);
    store.cleanUpPendingIcons(bundleID);
    return store.removePendingFolderIfEmpty(bundleID) || done;
}

} // namespace

TEST(IconFiles, AnIconIsKnownByItsNumberOnly) {
    EXPECT_EQ(iconIndex("icon_0.png"), 0);
    EXPECT_EQ(iconIndex("icon_007.png"), 7);
    EXPECT_EQ(iconIndex("icon_999999999.png"), 999'999'999);
    for (const char* name :
         {"icon_1000000000.png", "icon_4294967296.png", "icon_3_thumb.png", "icon_.png", "icon_.pn",
          "icon_-1.png", "icon_+1.png", "temp_icon_1.png", "icon_3.png.new", "Icon_3.png"})
        EXPECT_EQ(iconIndex(name), std::nullopt) << name;
}

TEST_F(IconStoreTest, ASavedIconHasTheNextNumberAndIsWholePrivateAndInMemory) {
    for (const char* name : {"icon_0.png", "icon_1.png", "icon_4_thumb.png", "icon_8.png.new"})
        stage.putFile(stage.permanent / name, 1);
    // What an earlier icon of this number left must not stand for the new one.
    for (const char* name : {"icon_2.png", "icon_3_thumb.png", "icon_3.png.new"})
        stage.putFile(stage.pending / name, 9);

    const LogRecorder log;
    const auto saved = store.savePendingIcon(picture(5), kAtlas);
    ASSERT_EQ(saved, stage.pending / "icon_3.png");
    EXPECT_THAT(log.lines(),
                ElementsAre("  Found permanent icon_0", "  Found permanent icon_1", "  Found pending icon_2",
                            "📊 Next available index for com.example.atlas: 3 (highest found: 2)",
                            "💾 Saved pending icon to: " + saved->string() + " with index 3"));
    EXPECT_EQ(stage.disk.attributes(*saved)->permissions, 0600u);
    EXPECT_THAT(*stage.disk.list(stage.pending), ElementsAre("icon_2.png", "icon_3.png"));
    EXPECT_EQ(stage.colour(*saved), 5);
    const std::size_t before = stage.mac.files.count();
    EXPECT_EQ(colourOf(program.cache.loadImage(*saved)), 5);
    EXPECT_EQ(stage.mac.files.count(), before);

    EXPECT_EQ(store.savePendingIcon(QImage(), kAtlas), std::nullopt);
    EXPECT_TRUE(log.has("Failed to convert icon to PNG"));
}

TEST(IconStore, WhereverAnOperationIsStoppedNoIconIsLostAndTheNextOneFinishesIt) {
    struct Case {
        std::vector<std::string> permanent; ///< of the colours 1, 2 and so on
        std::vector<std::string> pending;   ///< of the colours that follow
        std::function<void(IconStore&)> work;
        std::vector<int> after; ///< colours
    };

    const auto save = [](IconStore& store) { store.savePendingIcon(picture(3), kAtlas); };
    const auto removeSecond = [](IconStore& store) { store.deleteIconAndReindex(kAtlas, 1); };
    const auto renumber = [](IconStore& store) { store.renumber(kAtlas); };
    const std::vector<Case> cases{
        {{"icon_0.png"}, {"icon_1.png"}, save, {1, 2, 3}},
        {{"icon_0.png", "icon_1.png", "icon_2.png", "icon_3.png"}, {}, removeSecond, {1, 3, 4}},
        {{"icon_0.png", "temp_icon_2.png", "icon_9.png"}, {}, renumber, {1, 2, 3}},
        {{"icon_0.png", "temp_icon_0.png", "icon_1.png", "icon_01.png", "icon_7.png"},
         {},
         renumber,
         {1, 2, 3, 4, 5}},
    };
    for (const auto& [permanent, pending, work, after] : cases) {
        std::vector<int> before(permanent.size() + pending.size());
        std::iota(before.begin(), before.end(), 1);
        const auto setup = [&](IconStage& stage) {
            ASSERT_TRUE(stage.disk.createFolder(stage.pending));
            stage.putFile(stage.permanent / "icon_2_thumb.png", 99); // of no icon, or replaced below
            int colour = 0;
            for (const std::string& name : permanent)
                stage.put(stage.permanent / name, ++colour);
            for (const std::string& name : pending)
                stage.put(stage.pending / name, ++colour);
        };
        const auto finish = [&](IconStage& stage) {
            EXPECT_THAT(stage.colours(), AnyOf(before, after));
            IconProgram again(stage);
            if (stage.colours() == before)
                work(again.store);
            EXPECT_EQ(stage.colours(), after);
            const auto icons = again.store.renumber(kAtlas);
            for (std::size_t i = 0; i < icons.size(); ++i)
                EXPECT_EQ(icons[i], stage.icon(static_cast<int>(i)));
            EXPECT_EQ(stage.colours(), after);
            for (const int outside : {-1, 5, 1'000'000})
                again.store.deleteIconAndReindex(kAtlas, outside);
            EXPECT_EQ(stage.colours(), after);
            EXPECT_THAT(*stage.disk.list(stage.pending), Each(Not(testing::EndsWith(".new"))));
        };
        stopAtEveryOperation(setup, [&](IconProgram& program) { work(program.store); }, finish);
    }
}

TEST_F(IconStoreTest, SavesFromSeveralThreadsBesideATransferLoseNothing) {
    for (int colour = 1; colour <= 3; ++colour)
        stage.put(stage.pending / iconFileName(colour), colour);
    std::vector<std::thread> threads;
    for (int first : {10, 20, 30}) {
        threads.emplace_back([this, first] {
            for (int colour = first; colour < first + 3; ++colour)
                EXPECT_TRUE(store.savePendingIcon(picture(colour), kAtlas));
        });
    }
    for (int number = 1; number <= 3; ++number)
        EXPECT_TRUE(store.transferPendingIcon(stage.pending / iconFileName(number), kAtlas));
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(stage.colours(), testing::UnorderedElementsAre(1, 2, 3, 10, 11, 12, 20, 21, 22, 30, 31, 32));
}

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
        EXPECT_FALSE(tryEverything(program, name)) << name;
        EXPECT_TRUE(log.has("  ❌ SAFETY: Refusing to delete - invalid directory structure")) << name;
        EXPECT_FALSE(store.ownsPath(store.iconCacheURL() / name / "icon_1.png", name)) << name;
    }
    EXPECT_THAT(differences(before, treeOf(stage.disk, stage.support)), ElementsAre());
}

TEST_F(IconStoreTest, TouchesNothingBehindAPlantedLink) {
    for (const MacPath& link : {stage.support / "PendingChanges", stage.support / "PendingChanges/Icons",
                                stage.pending, stage.support / "IconCache", stage.permanent}) {
        SCOPED_TRACE(link.string());
        IconStage clean;
        IconProgram other(clean);
        for (const char* folder : {"", "Icons", kAtlas.c_str(), "Icons/com.example.atlas"})
            clean.put(MacPath("/Users/victim") / folder / "icon_1.png", 1);
        const FileTree before = treeOf(clean.disk, MacPath("/Users/victim"));
        ignoreFailure(clean.disk.remove(link));
        ASSERT_TRUE(clean.disk.createFolder(link.parent()));
        ASSERT_TRUE(clean.disk.createLink(link, "/Users/victim"));

        ignoreFailure(tryEverything(other, kAtlas));
        other.store.removeUnnamedPendingIcons({});
        other.store.cleanUpAllPendingIcons();
        EXPECT_THAT(differences(before, treeOf(clean.disk, MacPath("/Users/victim"))), ElementsAre());
    }
}

TEST_F(IconStoreTest, APendingIconIsRemovedByItsOwnPathOrWhenNothingNamesIt) {
    putBoth();
    stage.put(stage.pending / "icon_6.png", 6);
    const MacPath all = stage.pending.parent();
    stage.put(all / "com.example.gone/icon_4.png", 4);
    for (const char* name : {"icon_3.png.new", "icon_5_thumb.png", "notes.txt"})
        stage.putFile(stage.pending / name, 3);
    ASSERT_TRUE(stage.disk.createLink(all / "com.example.link", stage.permanent.string()));

    const std::string pending = stage.pending.string();
    const LogRecorder log;
    for (const std::string& path : {stage.icon(1).string(), pending, pending + "/../" + kAtlas + "/icon_1.png",
                                    pending + "//icon_1.png", pending + "/icon_1_thumb.png"})
        store.deletePendingIcon(MacPath(path));
    EXPECT_THAT(stage.colours(stage.pending), ElementsAre(1, 2, 6));
    EXPECT_FALSE(log.mentions("🗑️"));
    store.deletePendingIcon(stage.pending / "icon_0.png");
    EXPECT_TRUE(log.has("🗑️ Deleted pending icon and cleared cache: " + pending + "/icon_0.png"));
    EXPECT_THAT(stage.colours(stage.pending), ElementsAre(2, 6));

    store.removeUnnamedPendingIcons({stage.pending / "icon_1.png"});
    EXPECT_THAT(*stage.disk.list(stage.pending),
                ElementsAre("icon_1.png", "icon_1_thumb.png", "icon_1_thumb@2x.png", "notes.txt"));
    EXPECT_THAT(*stage.disk.list(all), ElementsAre(kAtlas));
    stage.mac.files.failOn("remove", stage.pending, EACCES);
    store.cleanUpAllPendingIcons();
    EXPECT_TRUE(log.has("⚠️ Failed to cleanup pending icons for com.example.atlas"));
    stage.mac.files.failNothing();
    store.cleanUpAllPendingIcons();
    EXPECT_TRUE(log.has("🧹 Cleaned up all pending icons"));
    EXPECT_FALSE(stage.disk.exists(all));
    EXPECT_THAT(stage.colours(), ElementsAre(1, 2));
}

} // namespace tavrik::test
