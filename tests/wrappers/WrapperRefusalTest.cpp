#include "platform/Sqlite.h"
#include "platform/Workspace.h"
#include "wrappers/WrapperStage.h"

namespace tavrik::test {

namespace {

struct Refusals : WrapperStage {
    /// Everything but the marks that readers of the database leave.
    FileTree everything() const {
        FileTree tree = treeOf(volume.root());
        std::erase_if(tree, [](const auto& entry) { return entry.first.ends_with("/db-shm"); });
        return tree;
    }

    enum class Removal { goesAhead, refused };

    /// All that may change something, for one application.
    void expectRefused(const ApplicationInfo& app, Removal removal = Removal::goesAhead) {
        SCOPED_TRACE(app.path.string());
        program->settings.setSelectedIcon(app.bundleID, 1);
        const FileTree before = everything();
        EXPECT_FALSE(wrappers().createWrapper(app, redIcon()));
        EXPECT_FALSE(wrappers().batchCreateWrapper(app, redIcon()));
        EXPECT_FALSE(wrappers().updateWrapperIcon(app, redIcon()));
        EXPECT_TRUE(removal == Removal::goesAhead || !wrappers().removeWrapper(app, RestartDock::yes));
        EXPECT_TRUE(log.mentions("ERROR: Refusing "));
        EXPECT_THAT(differences(before, everything()), testing::IsEmpty());
        log.clear();
    }
};

} // namespace

TEST_F(Refusals, ApplicationsThatCannotBeRestyled) {
    for (const auto mark : {&ApplicationInfo::isIOSApp, &ApplicationInfo::isUnsupportedApp}) {
        ApplicationInfo app = atlas;
        app.*mark = true;
        expectRefused(app);
    }
}

TEST_F(Refusals, NamesThatCannotBeAFiles) {
    for (const char* path : {"", "/", "/Applications/.app", "/Applications/-rf.app", "/Applications/a\nb.app"})
        expectRefused(application(atlas.bundleID, path), Removal::refused);
}

TEST_F(Refusals, LinksPlantedWhereTheWrappersAre) {
    const MacPath victim = practice::kHome / "Documents/Precious";
    for (const MacPath& link : {kWrappers, wrapperOf(atlas)}) {
        ASSERT_TRUE(mac.files.createFolder(victim / "Atlas.app/Contents"));
        ASSERT_TRUE(mac.files.createFolder(link.parent()));
        ignoreFailure(mac.files.remove(link));
        ASSERT_TRUE(mac.files.createLink(link, victim.string()));
        expectRefused(atlas, Removal::refused);
        ASSERT_TRUE(mac.files.remove(link));
    }
}

TEST_F(Refusals, ADatabaseThatLacksColumns) {
    ASSERT_TRUE(sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite)
                    ->execute("PRAGMA legacy_alter_table=ON; ALTER TABLE items RENAME COLUMN flags TO marks"));
    expectRefused(atlas);
}

TEST_F(Refusals, ANameThatAnotherApplicationsWrapperHas) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    expectRefused(application("net.example.halyard", "/Applications/Utilities/Atlas.app"));
    expectSwapped(atlas);
}

TEST_F(Refusals, LinksOnlyWhatBelongsToTheOriginal) {
    ASSERT_TRUE(mac.workspace.setIcon(atlas.path, redIcon()));
    ASSERT_TRUE(mac.files.createFolder(atlas.path / "Extra"));
    ASSERT_TRUE(wrappers().batchCreateWrapper(atlas, QImage()));
    EXPECT_THAT(*mac.files.list(wrapperOf(atlas)), testing::UnorderedElementsAre("Contents", "Extra"));
}

TEST_F(Refusals, CutsAnIconToTheOutlineOnlyWhereThePersonAskedForIt) {
    program->iconSettings.setSquircleSetting(atlas.bundleID, 1, true);
    program->iconSettings.setSquircleSetting(atlas.bundleID, 2, false);
    ASSERT_TRUE(wrappers().batchCreateWrapper(atlas, redIcon()));
    for (const int selected : {0, 1, 2}) {
        program->settings.setSelectedIcon(atlas.bundleID, selected);
        ASSERT_TRUE(wrappers().setWrapperIcon(atlas, redIcon()));
        EXPECT_EQ(mac.workspace.icon(wrapperOf(atlas)).pixelColor(0, 0).alpha() == 0, selected == 1)
            << selected;
    }
}

} // namespace tavrik::test
