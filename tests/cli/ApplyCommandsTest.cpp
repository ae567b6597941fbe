#include "RunningCompanion.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "practice/dock/Dock.h"

using namespace tavrik;
using namespace tavrik::test;
using namespace testing;

namespace {

class ApplyCommands : public RunningCompanion {
protected:
    ApplyCommands() {
        EXPECT_TRUE(
            practice::writeDockBehaviour(root, {.restartDelay = 0.1, .indexDelay = 0.2, .indexes = true}));
        run({"icon", "add", kAtlas, picture("pink.png", QColor(255, 0, 200))});
    }

    QImage drawn() {
        const std::string file = (own.path() / "drawn.png").string();
        run({"picture", file});
        return QImage(QString::fromStdString(file));
    }
};

} // namespace

TEST_F(ApplyCommands, TellWhatAnApplyWouldDoAndDoItAndDoItAgain) {
    const QImage before = drawn();
    EXPECT_THAT(run({"plan"}).output,
                HasSubstr("Restyled for the first time: Atlas\n\n"
                          "Icons moved or deleted (1)\n  Atlas: icon_0.png (staged) -> icon_0.png\n\n"
                          "Icons in use (1)\n  Atlas: its own -> icon 0\n\n"
                          "Wrappers (1)\n  Atlas.app is made\n\n"
                          "Shown in Launchpad (1)\n  Atlas: /Applications/Atlas.app -> its wrapper\n\n"
                          "Tiles of the Dock (1)\n  Atlas: /Applications/Atlas.app -> its wrapper\n\n"
                          "A backup is taken before. The Dock is restarted 2 times.\n"));
    EXPECT_EQ(json({"plan"})[QLatin1String("changes")].toArray().size(), 5);

    // The practice Mac has Atlas running, and there is nobody to ask.
    EXPECT_THAT(run({"apply"}, 3).errors,
                AllOf(HasSubstr("must be closed first: Atlas."), HasSubstr("apply --close-running-apps")));
    EXPECT_EQ(drawn(), before);

    EXPECT_THAT(run({"apply", "--close-running-apps"}).output,
                AllOf(HasSubstr("Force quitting Atlas\n"), HasSubstr("in the backup \"Original State\""),
                      HasSubstr("Everything is applied.")));
    const QImage after = drawn();
    EXPECT_NE(after, before);
    EXPECT_THAT(run({"apply"}, 3).errors, HasSubstr("Nothing is staged"));

    ASSERT_TRUE(volume.remove(wrapperFolder(practice::kHome) / "Atlas.app/._Icon\r"));
    EXPECT_NE(drawn(), after);
    EXPECT_THAT(run({"refresh"}).output, HasSubstr("The icons of 1 application were written again"));
    EXPECT_EQ(drawn(), after);
}

TEST_F(ApplyCommands, ChangeNothingWhileLaunchpadIsLocked) {
    const MacPath file = launchpadDatabasePath(practice::kTemporaryFolder);
    auto other = sqlite::Connection::open(root / file.string(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(other && other->execute("BEGIN IMMEDIATE"));
    const std::string why = "The Launchpad database is locked by another program";
    EXPECT_THAT(run({"plan"}).output, HasSubstr("In the way: " + why));
    EXPECT_THAT(run({"apply", "--close-running-apps"}, 3).errors, HasSubstr(why));
    EXPECT_THAT(run({"refresh"}, 3).errors, HasSubstr(why));
    EXPECT_THAT(run({"status"}).output, HasSubstr("Atlas: 1 new"));
}
