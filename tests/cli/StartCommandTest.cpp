#include "RunningCompanion.h"
#include "platform/ChildProcess.h"
#include "platform/practice/Layout.h"

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;
using testing::Not;

namespace {

const MacPath kGone = practice::kHome / "Applications/Tavrik/Gone.app";

class StartCommandTest : public RunningCompanion {
protected:
    /// Changes of before, and a wrapper without its original.
    StartCommandTest() {
        run({"icon", "add", kAtlas, picture("red.png", Qt::red)});
        EXPECT_TRUE(volume.createFolder(kGone) && volume.createLink(kGone / "Contents", "/Applications/Gone"));
    }

    std::string atTerminal(const std::string& answers) const {
        const auto result =
            runChild(HostPath("/usr/bin/python3"), {AT_TERMINAL, answers, TAVRIKCTL, "start"}, {});
        EXPECT_TRUE(result && result->exitStatus == 0)
            << (result ? result->errors : result.error().description);
        return result ? result->output : "";
    }
};

} // namespace

TEST_F(StartCommandTest, AsksAtTheTerminalAndDoesWhatIsAnswered) {
    const std::string shown = atTerminal("1,2");
    EXPECT_THAT(shown,
                HasSubstr("Recovered unsaved changes\nYour previous session had unsaved changes. Do you want "
                          "to recover them?\n  1  Recover\n  2  Abandon\n"));
    EXPECT_THAT(shown,
                HasSubstr("Notice\nAn app you previously themed, Gone, has been deleted.\n\nWould you like to "
                          "clean up left over theme data?\n  1  Clean Up\n  2  Not Now\n"));
    EXPECT_THAT(shown, HasSubstr("\"tavrikctl apply\""));
    EXPECT_TRUE(volume.exists(kRecoveryFile));
    EXPECT_TRUE(volume.exists(kGone));

    EXPECT_THAT(atTerminal("3,2,1"), Not(HasSubstr("\"tavrikctl apply\""))) << "3 is no button";
    EXPECT_FALSE(volume.exists(kRecoveryFile));
    EXPECT_FALSE(volume.exists(kGone));
}

TEST_F(StartCommandTest, LosesNothingWhereNobodyAnswers) {
    const Bytes staged = *volume.read(kRecoveryFile);
    for (const bool isTerminal : {true, false}) {
        const std::string shown = isTerminal ? atTerminal("") : run({"start"}).output;
        EXPECT_THAT(shown, HasSubstr("Tavrik is ready."));
        EXPECT_TRUE(volume.exists(kRecoveryFile));
        EXPECT_THAT(run({"status"}).output, HasSubstr("Atlas: 1 new icon"));
        EXPECT_TRUE(volume.exists(kGone));
    }
}

TEST_F(StartCommandTest, NothingIsWrittenOnASystemThatIsTooNew) {
    ASSERT_TRUE(
        volume.write(practice::kSystemVersionFile,
                     bytesOf("<plist><dict><key>ProductVersion</key><string>26.1</string></dict></plist>")));
    const FileTree before = treeOf(root);
    for (const Arguments& arguments : {Arguments{"start"}, {"apply"}, {"discard"}, {"backup", "create"}})
        EXPECT_THAT(run(arguments, 3).errors, HasSubstr("macOS 26.1.0"));
    EXPECT_THAT(run({"status"}).output, HasSubstr("Atlas"));
    EXPECT_THAT(differences(before, treeOf(root)), testing::IsEmpty());
}
