#include "IconStage.h"
#include "icons/BoundedImageCache.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/WaitFor.h"

#include <QCoreApplication>
#include <QThread>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class IconCacheTest : public testing::Test {
protected:
    QImage settledThumbnail(const MacPath& path, ThumbnailSize size) {
        cache.thumbnail(path, size);
        cache.waitForThumbnails();
        return cache.thumbnail(path, size);
    }

    int argc = 1;
    char name[6] = "tests";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    IconStage stage;
    FailingFileManager& files{stage.mac.files};
    LogRecorder log;
    IconCache cache{files};
    const MacPath icon = stage.icon(0);
};

TEST(BoundedImageCache, LetsTheLongestUnseenGoAtEitherLimitAndCountsEachPictureOnce) {
    const auto pathOf = [](int number) { return MacPath("/" + std::to_string(number)); };
    const auto pictureOf = [](int kilobytes) {
        return QImage(256, kilobytes, QImage::Format_ARGB32_Premultiplied);
    };
    for (const auto& [countLimit, kilobytes] : {std::pair(3u, 1000u), std::pair(100u, 35u)}) {
        BoundedImageCache cache(countLimit, kilobytes << 10);
        cache.insert(pathOf(1), pictureOf(20));
        for (int number : {1, 2, 3})
            cache.insert(pathOf(number), pictureOf(10));
        EXPECT_EQ(cache.find(pathOf(1))->height(), 10);
        cache.insert(pathOf(4), pictureOf(10));
        cache.insert(pathOf(4), pictureOf(1001)); // larger than all: neither kept nor a reason for others to go
        cache.insert(pathOf(5), pictureOf(10));
        for (int number = 1; number <= 5; ++number)
            EXPECT_EQ(cache.find(pathOf(number)).has_value(), number % 2 == 1) << number << ", " << countLimit;
        EXPECT_EQ(cache.totalCost(), 30u << 10);
        for (int number : {1, 1, 3, 5})
            cache.remove(pathOf(number));
        EXPECT_EQ(cache.totalCost(), 0u);
    }
}

TEST_F(IconCacheTest, AnswersInTheOrderAskedOnTheMainThreadAndOnlyTheLiving) {
    for (int i = 0; i < 3; ++i)
        stage.putFile(stage.icon(i), i + 1);
    QObject alive;
    auto gone = std::make_unique<QObject>();
    std::vector<int> answer;
    bool answeredTheGone = false;
    bool answeredNone = false;
    cache.loadImage(icon, gone.get(), [&](const QImage&) { answeredTheGone = true; });
    gone.reset();
    cache.loadImages({stage.icon(2), stage.icon(7), icon, stage.icon(1)}, &alive, [&](const auto& images) {
        EXPECT_EQ(QThread::currentThread(), application.thread());
        std::ranges::transform(images, std::back_inserter(answer), colourOf);
    });
    cache.loadImages({}, &alive, [&](const auto& images) { answeredNone = images.empty(); });
    ASSERT_TRUE(waitFor([&] {
        QCoreApplication::processEvents();
        return !answer.empty() && answeredNone;
    }));
    EXPECT_THAT(answer, ElementsAre(3, 0, 1, 2));
    EXPECT_FALSE(answeredTheGone);

    files.forget();
    EXPECT_EQ(colourOf(cache.loadImage(stage.icon(1))), 2);
    EXPECT_THAT(files.journal(), ElementsAre());
}

TEST_F(IconCacheTest, FitsThumbnailsIntoSquaresAndKeepsThemBesideTheIcon) {
    stage.putFile(icon, 1, {2048, 1008}); // 130 x 64 and 65 x 32
    EXPECT_EQ(cache.thumbnail(icon, ThumbnailSize::x1).width(), 2048);
    cache.waitForThumbnails();
    EXPECT_TRUE(log.has("✅ Thumbnails created at: " + icon.string()));
    const auto isPrivate = [](const char* file) { return testing::Pair(file, HasSubstr("file 600")); };
    EXPECT_THAT(
        treeOf(files, stage.permanent),
        ElementsAre(isPrivate("icon_0.png"), isPrivate("icon_0_thumb.png"), isPrivate("icon_0_thumb@2x.png")));

    IconCache later(files);
    files.forget();
    for (const auto& [size, side, top, bottom] :
         {std::tuple{ThumbnailSize::x1, 65, 16, 47}, {ThumbnailSize::x2, 130, 33, 96}}) {
        const QImage image = later.thumbnail(icon, size);
        ASSERT_EQ(image.size(), QSize(side, side));
        for (int y = 0; y < side; ++y)
            EXPECT_EQ(image.pixelColor(side / 2, y).alpha(), y < top || y > bottom ? 0 : 255) << y;
    }
    EXPECT_THAT(files.journal(), Not(testing::Contains("read " + icon.string())));
}

TEST_F(IconCacheTest, MakesThumbnailsWhateverStandsInTheirPlaceAndWhereverTheirFilesCannotBe) {
    const MacPath victim = stage.permanent / "victim.png";
    const MacPath inTheme = stage.permanent / "com.example.atlas.png";
    const MacPath linked = MacPath("/Users/practice/linked") / icon.name();
    stage.putFile(victim, 2, {64, 64});
    for (const MacPath& path : {icon, inTheme})
        stage.putFile(path, 1, {1024, 1024});
    ASSERT_TRUE(files.createLink(linked.parent(), stage.permanent.string()));

    struct Case {
        std::string what;
        std::function<void(const MacPath&)> damage;
        MacPath path;
        std::vector<std::string> made;
    };

    const std::vector<std::string> both{"+ icon_0_thumb.png", "+ icon_0_thumb@2x.png"};
    const std::vector<Case> cases{
        {"missing", [](auto&) {}, icon, both},
        {"cut", [&](auto& file) { ASSERT_TRUE(files.create(file, bytesOf("\x89PNG"))); }, icon, both},
        {"wrong size", [&](auto& file) { stage.putFile(file, 2, {64, 65}); }, icon, both},
        {"link", [&](auto& file) { ASSERT_TRUE(files.createLink(file, victim.string())); }, icon, both},
        {"in a theme", [](auto&) {}, inTheme, {}},
        {"behind a link", [](auto&) {}, linked, {}},
        {"disk full", [&](auto&) { files.failOn("create", MacPath(), ENOSPC); }, icon, {}},
    };
    const auto before = treeOf(files, stage.permanent);
    for (const auto& [what, damage, path, made] : cases) {
        SCOPED_TRACE(what);
        for (const ThumbnailSize size : kThumbnailSizes) {
            ignoreFailure(files.remove(thumbnailPath(icon, size)));
            damage(thumbnailPath(icon, size));
        }
        cache.remove(path);
        log.clear();
        const QImage thumbnail = settledThumbnail(path, ThumbnailSize::x1);
        EXPECT_EQ(thumbnail.width(), 65);
        EXPECT_EQ(colourOf(thumbnail), 1);
        EXPECT_EQ(colourOf(IconCache(files).thumbnail(path, ThumbnailSize::x2)), 1);
        EXPECT_EQ(differences(before, treeOf(files, stage.permanent)), made);
        EXPECT_EQ(log.mentions("✅"), !made.empty());
    }
}

} // namespace
} // namespace tavrik::test
