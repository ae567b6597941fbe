#include "model/catalogue/AppManager.h"

#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "platform/Workspace.h"
#include "support/WaitFor.h"
#include "system/LaunchpadSample.h"
#include "wrappers/WrapperStage.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCoreApplication>

namespace tavrik::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using AppManagerTest = LaunchpadSample;
using WrapperDoor = WrapperStage;

/// The catalogue and its icons over the managers of a program.
struct Catalogue {
    explicit Catalogue(Program& of) : program(of) {}

    Program& program;
    IconCache cache{program.mac.files};
    IconStore store{program.mac.files, program.settings, cache};
    AppManager apps{program.database, program.settings, program.wrappers, store, cache};
};

QImage picture(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(200, 100, 50));
    image.setColorSpace(QColorSpace::AdobeRgb); // a conversion shows, since it goes to sRGB
    return image;
}

TEST_F(AppManagerTest, ListsApplicationsWithIconsThatWaitToBeLookedAt) {
    addApp(1, "Atlas", "com.example.atlas", 0, MacPath("/Applications/Atlas.app"));
    Program program(small.mac);
    Catalogue catalogue(program);
    const auto applications = catalogue.apps.loadApplications();
    ASSERT_EQ(applications.size(), 1u);
    EXPECT_THAT(small.files.journal(), Not(Contains(HasSubstr(".icns"))));
    EXPECT_FALSE(applications.front().icon.image().isNull());
    EXPECT_THAT(small.files.journal(), Contains(HasSubstr(".icns")));

    // What others write into the settings after the load is seen: its cache is gone.
    const auto other =
        bytesOf("<plist><dict><key>BackupRetentionCount</key><integer>9</integer></dict></plist>");
    ASSERT_TRUE(small.files.write(program.settings.appSupportURL() / "AppSettings.plist", other));
    EXPECT_EQ(program.settings.getBackupRetentionCount(), 9);
}

TEST_F(WrapperDoor, RefreshesTheMappedAppsAloneAndRefusesIOSApps) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()) && wrappers().batchCreateWrapper(tips, redIcon()));
    Catalogue catalogue(*program);
    log.clear();
    catalogue.apps.refreshAllWrapperApps();
    EXPECT_EQ(log.count("Ensuring icon sync for org.example.atlas"), 1u);
    EXPECT_FALSE(log.has("Ensuring icon sync for com.apple.tips"));

    ApplicationInfo app = atlas;
    app.isIOSApp = true;
    const auto before = treeOf(volume.root());
    log.clear();
    EXPECT_FALSE(catalogue.apps.updateWrapperIcon(app, redIcon()));
    EXPECT_FALSE(catalogue.apps.removeWrapper(app, RestartDock::yes));
    EXPECT_THAT(log.lines(), ElementsAre("Cannot update tavrik app icon for iOS app: Atlas",
                                         "Cannot remove tavrik app for iOS app: Atlas"));
    EXPECT_THAT(differences(before, treeOf(volume.root())), ElementsAre());
}

TEST_F(WrapperDoor, SquaresAnIconUnlessItHasTheRightSize) {
    ASSERT_TRUE(wrappers().createWrapper(atlas, redIcon()));
    Catalogue catalogue(*program);
    const auto colour = [&] { return mac.workspace.icon(wrapperOf(atlas)).pixelColor(300, 512); };

    EXPECT_TRUE(catalogue.apps.updateWrapperIcon(atlas, picture({1024, 1024})));
    EXPECT_EQ(colour(), QColor(200, 100, 50));
    EXPECT_TRUE(catalogue.apps.updateWrapperIcon(atlas, picture({1024, 1023})));
    EXPECT_EQ(colour(), IconManager::squareIcon(picture({1024, 1024}))->pixelColor(300, 512));
    EXPECT_NE(colour(), QColor(200, 100, 50));

    log.clear();
    EXPECT_FALSE(catalogue.apps.updateWrapperIcon(atlas, QImage()));
    EXPECT_THAT(log.lines(), ElementsAre("Failed to convert icon to 1024x1024 for tavrik app update"));

    EXPECT_TRUE(catalogue.apps.removeWrapper(atlas, RestartDock::yes));
    expectUntouched(atlas);
}

#ifdef __SANITIZE_THREAD__
constexpr int kPictures = 24; // one takes up to a second there
#else
constexpr int kPictures = 200;
#endif

QColor colourNumber(int number) {
    return QColor(number, 255 - number, 7);
}

QImage pictureNumber(int number) {
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(colourNumber(number));
    return image;
}

Bytes png(int number) {
    QBuffer buffer;
    pictureNumber(number).save(&buffer, "PNG");
    return Bytes(buffer.data().begin(), buffer.data().end());
}

class IconProcessing : public testing::Test {
protected:
    void waitForAnswers(std::size_t count) {
        const auto areThere = [&] {
            QCoreApplication::processEvents();
            return answers.size() >= count;
        };
        EXPECT_TRUE(waitFor(areThere, std::chrono::seconds(60)));
    }

    /// What the file is called, or why there is none.
    AppManager::IconCompletion answer() {
        return [this](const Result<MacPath>& saved) {
            answers.push_back(saved ? saved->name() : saved.error().description);
        };
    }

    void process(const QImage& image) {
        const std::size_t answered = answers.size();
        catalogue.apps.processIcon(image, atlas, "Atlas", &context, answer());
        waitForAnswers(answered + 1);
    }

    const std::string atlas = "org.example.atlas";
    int argc = 1;
    char name[6] = "tests";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    QObject context;
    std::vector<std::string> answers;
    SmallMac small;
    Program program{small.mac};
    Catalogue catalogue{program};
    LogRecorder log;
};

TEST_F(IconProcessing, SavesAndAnswersInTheOrderOfTheHandOver) {
    constexpr int kRefused = kPictures / 2;
    constexpr int kAbandoned = kPictures / 4;
    std::vector<std::string> expected;
    auto gone = std::make_unique<QObject>();
    for (int number = 0; number < kPictures; ++number) {
        if (number == kRefused)
            catalogue.apps.processPicture({'n', 'o'}, "notes.txt", atlas, "Atlas", &context, answer());
        QObject* const asker = number == kAbandoned ? gone.get() : &context;
        if (number % 2)
            catalogue.apps.processIcon(pictureNumber(number), atlas, "Atlas", asker, answer());
        else
            catalogue.apps.processPicture(png(number), "a.png", atlas, "Atlas", asker, answer());
        if (number == kRefused)
            expected.push_back("“notes.txt”");
        if (number != kAbandoned)
            expected.push_back(iconFileName(number));
    }
    gone.reset();
    waitForAnswers(kPictures);
    ASSERT_EQ(answers.size(), expected.size());
    for (std::size_t i = 0; i < answers.size(); ++i)
        EXPECT_THAT(answers[i], testing::StartsWith(expected[i]));

    const auto icons = catalogue.store.listPendingIcons(atlas);
    catalogue.cache.waitForThumbnails();
    ASSERT_EQ(icons.size(), std::size_t{kPictures});
    for (int number = 0; number < kPictures; ++number) {
        const MacPath& icon = icons[static_cast<std::size_t>(number)];
        EXPECT_EQ(icon.name(), iconFileName(number));
        EXPECT_TRUE(log.has("✅ Saved icon to pending directory: " + icon.string()));
        EXPECT_TRUE(log.has("✅ Thumbnails created at: " + icon.string()));
        EXPECT_EQ(catalogue.cache.loadImage(icon).pixelColor(512, 512), colourNumber(number));
    }
}

TEST_F(IconProcessing, SaysWhyThereIsNoIcon) {
    process(QImage());
    EXPECT_TRUE(log.has("❌ ERROR: Failed to convert icon to square PNG for org.example.atlas"));
    small.files.failOn("create", MacPath(), ENOSPC);
    process(pictureNumber(1));
    EXPECT_TRUE(log.has("❌ CRITICAL: Failed to save icon for org.example.atlas - no path returned"));
    EXPECT_THAT(answers,
                ElementsAre(HasSubstr("“Atlas” could not be made"), HasSubstr("“Atlas” could not be saved")));
    EXPECT_THAT(catalogue.store.listPendingIcons(atlas), ElementsAre());
}

TEST_F(IconProcessing, PassesOverSavedIconsThatCannotBeRead) {
    const MacPath folder = catalogue.store.iconCacheURL() / atlas;
    ASSERT_TRUE(small.files.createFolder(folder));
    for (const int number : {0, 1, 2}) {
        const Bytes content = number == 1 ? Bytes{'n', 'o'} : png(number);
        ASSERT_TRUE(small.files.create(folder / iconFileName(number), content));
    }
    const auto icons = catalogue.apps.savedIcons(atlas);
    ASSERT_EQ(icons.size(), 2u);
    EXPECT_EQ(icons[0].pixelColor(8, 8), colourNumber(0));
    EXPECT_EQ(icons[1].pixelColor(8, 8), colourNumber(2));
}

} // namespace
} // namespace tavrik::test
