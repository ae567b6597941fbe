#include "model/catalogue/Catalogue.h"
#include "support/SmallMac.h"
#include "support/WaitFor.h"

#include <QBuffer>
#include <QCoreApplication>

namespace tavrik::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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

Bytes fileOf(const QImage& image) {
    QBuffer buffer;
    image.save(&buffer, "BMP");
    return Bytes(buffer.data().begin(), buffer.data().end());
}

class IconProcessing : public testing::Test {
protected:
    void waitForAnswers(std::size_t count) {
        EXPECT_TRUE(waitFor(
            [&] {
                QCoreApplication::processEvents();
                return answers.size() >= count;
            },
            std::chrono::seconds(60)));
    }

    /// What the file is called, or why there is none.
    AppManager::IconCompletion answer() {
        return [this](const Result<MacPath>& saved) {
            answers.push_back(saved ? saved->name() : saved.error().description);
        };
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
            catalogue.apps.processPicture(fileOf(pictureNumber(number)), "a.bmp", atlas, "Atlas", asker,
                                          answer());
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
    ASSERT_EQ(icons.size(), std::size_t{kPictures});
    for (int number = 0; number < kPictures; ++number) {
        const MacPath& icon = icons[static_cast<std::size_t>(number)];
        EXPECT_EQ(icon.name(), iconFileName(number));
        EXPECT_EQ(catalogue.cache.loadImage(icon).pixelColor(512, 512), colourNumber(number));
    }
}

TEST_F(IconProcessing, LeavesTheIconInMemoryAndItsThumbnailsToFollow) {
    catalogue.apps.processIcon(pictureNumber(1), atlas, "Atlas", &context, answer());
    waitForAnswers(1);
    const MacPath icon = catalogue.store.pendingIconsBaseURL() / atlas / iconFileName(0);
    EXPECT_TRUE(log.has("✅ Saved icon to pending directory: " + icon.string()));
    catalogue.cache.waitForThumbnails();
    EXPECT_TRUE(log.has("✅ Thumbnails created at: " + icon.string()));
    EXPECT_EQ(catalogue.cache.loadImage(icon).pixelColor(9, 9), colourNumber(1));
    EXPECT_THAT(small.files.journal(), Not(Contains("read " + icon.string())));
}

TEST_F(IconProcessing, SaysWhyThereIsNoIcon) {
    catalogue.apps.processIcon(QImage(), atlas, "Atlas", &context, answer());
    waitForAnswers(1);
    EXPECT_TRUE(log.has("❌ ERROR: Failed to convert icon to square PNG for org.example.atlas"));
    small.files.failOn("create", MacPath(), ENOSPC);
    catalogue.apps.processIcon(pictureNumber(1), atlas, "Atlas", &context, answer());
    waitForAnswers(2);
    EXPECT_TRUE(log.has("❌ CRITICAL: Failed to save icon for org.example.atlas - no path returned"));
    EXPECT_THAT(answers,
                ElementsAre(HasSubstr("“Atlas” could not be made"), HasSubstr("“Atlas” could not be saved")));
    EXPECT_THAT(catalogue.store.listPendingIcons(atlas), IsEmpty());
}

TEST_F(IconProcessing, PassesOverSavedIconsThatCannotBeRead) {
    const MacPath folder = catalogue.store.iconCacheURL() / atlas;
    ASSERT_TRUE(small.files.createFolder(folder));
    for (int number : {0, 1, 2}) {
        catalogue.apps.processIcon(pictureNumber(number), atlas, "Atlas", &context, answer());
        waitForAnswers(static_cast<std::size_t>(number) + 1);
        ASSERT_TRUE(small.files.move(catalogue.store.pendingIconsBaseURL() / atlas / iconFileName(number),
                                     folder / iconFileName(number)));
    }
    ASSERT_TRUE(small.files.write(folder / iconFileName(1), bytesOf("no picture")));
    const auto icons = catalogue.apps.savedIcons(atlas);
    ASSERT_EQ(icons.size(), 2u);
    EXPECT_EQ(icons[0].pixelColor(512, 512), colourNumber(0));
    EXPECT_EQ(icons[1].pixelColor(512, 512), colourNumber(2));
}

} // namespace
} // namespace tavrik::test
