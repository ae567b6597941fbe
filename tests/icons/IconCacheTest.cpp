#include "icons/IconCacheStage.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/WaitFor.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>

#include <future>
#include <map>
#include <memory>
#include <thread>

namespace tavrik::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
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
    SmallMac small;
    IconFolder folder{small.files};
    LogRecorder log;
    IconCache cache{small.files};
};

TEST_F(IconCacheTest, SaysWhatIsWrongWithAFile) {
    const MacPath pending("/Users/practice/PendingChanges/Icons/com.example.atlas/icon_0.png");
    ASSERT_TRUE(small.files.createFolder(pending.parent()));
    folder.put(pending, IconFolder::picture(Qt::red));
    folder.put(folder.icon(0), IconFolder::picture(Qt::red, {1024, 512}));
    auto cut = *small.files.read(pending, 1u << 20);
    cut.resize(cut.size() / 2);
    ASSERT_TRUE(small.files.create(folder.icon(1), cut));

    EXPECT_EQ(cache.loadImage(pending).size(), QSize(1024, 1024));
    EXPECT_EQ(cache.loadImage(folder.icon(0)).size(), QSize(1024, 512));
    EXPECT_TRUE(cache.loadImage(folder.icon(1)).isNull());
    EXPECT_TRUE(cache.loadImage(folder.icon(2)).isNull());
    EXPECT_THAT(log.lines(), ElementsAre("📋 Loading pending icon from: " + pending.string(),
                                         "Warning: Icon at " + folder.icon(0).string() +
                                             " is smaller than expected: 1024x512",
                                         "IconCache: Failed to load icon from " + folder.icon(1).string(),
                                         "IconCache: File doesn't exist at " + folder.icon(2).string()));
}

TEST_F(IconCacheTest, AnswersInTheOrderAskedOnTheMainThreadAndOnlyTheLiving) {
    const std::vector<QColor> colours{Qt::red, Qt::green, Qt::blue};
    for (int i = 0; i < 3; ++i)
        folder.put(folder.icon(i), IconFolder::picture(colours[static_cast<std::size_t>(i)]));
    QObject alive;
    auto gone = std::make_unique<QObject>();
    std::vector<QImage> answer;
    bool answeredTheGone = false;
    bool answeredNone = false;
    cache.loadImages({folder.icon(0)}, gone.get(), [&](const auto&) { answeredTheGone = true; });
    cache.loadImage(folder.icon(0), gone.get(), [&](const QImage&) { answeredTheGone = true; });
    gone.reset();
    cache.loadImages({folder.icon(2), folder.icon(7), folder.icon(0), folder.icon(1)}, &alive,
                     [&](const std::vector<QImage>& images) {
                         EXPECT_EQ(QThread::currentThread(), application.thread());
                         answer = images;
                     });
    cache.loadImages({}, &alive, [&](const auto& images) { answeredNone = images.empty(); });
    ASSERT_TRUE(waitFor([&] {
        QCoreApplication::processEvents();
        return !answer.empty() && answeredNone;
    }));
    ASSERT_EQ(answer.size(), 4u);
    EXPECT_TRUE(answer[1].isNull());
    EXPECT_THAT((std::vector{colourOf(answer[0]), colourOf(answer[2]), colourOf(answer[3])}),
                ElementsAre(colours[2], colours[0], colours[1]));
    EXPECT_FALSE(answeredTheGone);

    small.files.forget();
    EXPECT_EQ(colourOf(cache.loadImage(folder.icon(1))), colours[1]);
    EXPECT_THAT(small.files.journal(), ElementsAre());
}

TEST_F(IconCacheTest, FitsThumbnailsIntoSquaresAndKeepsThemBesideTheIcon) {
    folder.put(folder.icon(0), IconFolder::picture(Qt::red, {2048, 1008})); // 130 x 64 and 65 x 32
    EXPECT_EQ(cache.thumbnail(folder.icon(0), ThumbnailSize::x1).width(), 2048);
    cache.waitForThumbnails();
    EXPECT_TRUE(log.has("✅ Thumbnails created at: " + folder.icon(0).string()));
    EXPECT_THAT(treeOf(small.files, folder.path),
                testing::UnorderedElementsAre(testing::Pair("icon_0.png", HasSubstr("file 600")),
                                              testing::Pair("icon_0_thumb.png", HasSubstr("file 600")),
                                              testing::Pair("icon_0_thumb@2x.png", HasSubstr("file 600"))));

    IconCache later(small.files);
    small.files.forget();
    for (const auto& [size, top, bottom] :
         {std::tuple{ThumbnailSize::x1, 16, 47}, {ThumbnailSize::x2, 33, 96}}) {
        const QImage image = later.thumbnail(folder.icon(0), size);
        const int side = static_cast<int>(size);
        ASSERT_EQ(image.size(), QSize(side, side));
        for (int y = 0; y < side; ++y)
            EXPECT_EQ(image.pixelColor(side / 2, y).alpha(), y < top || y > bottom ? 0 : 255) << y;
    }
    EXPECT_THAT(small.files.journal(), Not(Contains(EndsWith("read " + folder.icon(0).string()))));
}

TEST_F(IconCacheTest, MakesThumbnailsAnewWhateverStandsInTheirPlace) {
    const MacPath victim = folder.path / "victim.png";
    const auto damages = std::map<std::string, std::function<void(const MacPath&)>>{
        {"missing", [&](const MacPath&) {}},
        {"cut", [&](const MacPath& file) { ASSERT_TRUE(small.files.create(file, bytesOf("\x89PNG"))); }},
        {"wrong size", [&](const MacPath& file) { folder.put(file, IconFolder::picture(Qt::blue, {64, 65})); }},
        {"link", [&](const MacPath& file) { ASSERT_TRUE(small.files.createLink(file, victim.string())); }},
    };
    folder.put(victim, IconFolder::picture(Qt::blue, {64, 64}));
    folder.put(folder.icon(0), IconFolder::picture(Qt::red));
    const auto before = treeOf(small.files, folder.path);
    for (const auto& [what, damage] : damages) {
        SCOPED_TRACE(what);
        for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2}) {
            ignoreFailure(small.files.remove(thumbnailPath(folder.icon(0), size)));
            damage(thumbnailPath(folder.icon(0), size));
        }
        cache.remove(folder.icon(0));
        EXPECT_EQ(colourOf(settledThumbnail(folder.icon(0), ThumbnailSize::x1)), QColor(Qt::red));
        EXPECT_EQ(colourOf(IconCache(small.files).thumbnail(folder.icon(0), ThumbnailSize::x2)),
                  QColor(Qt::red));
        EXPECT_THAT(differences(before, treeOf(small.files, folder.path)),
                    ElementsAre("+ icon_0_thumb.png", "+ icon_0_thumb@2x.png"));
    }
}

TEST_F(IconCacheTest, KeepsThumbnailsInMemoryWhereTheirFilesCannotBe) {
    const MacPath inTheme = folder.path / "com.example.atlas.png";
    const MacPath linked = MacPath("/Users/practice/linked") / iconFileName(0);
    folder.put(inTheme, IconFolder::picture(Qt::red));
    folder.put(folder.icon(0), IconFolder::picture(Qt::red));
    folder.put(folder.icon(1), IconFolder::picture(Qt::red));
    ASSERT_TRUE(small.files.createLink(linked.parent(), folder.path.string()));
    ASSERT_TRUE(small.files.createFolder(thumbnailPath(folder.icon(1), ThumbnailSize::x1) / "foreign"));
    const auto before = treeOf(small.files, folder.path);
    for (const MacPath& icon : {inTheme, linked, folder.icon(1)}) {
        SCOPED_TRACE(icon.string());
        EXPECT_EQ(settledThumbnail(icon, ThumbnailSize::x1).width(), 65);
    }
    small.files.failOn("create", MacPath(), ENOSPC);
    EXPECT_EQ(settledThumbnail(folder.icon(0), ThumbnailSize::x1).width(), 65);
    EXPECT_THAT(differences(before, treeOf(small.files, folder.path)), ElementsAre());
    EXPECT_FALSE(log.mentions("✅"));
}

TEST_F(IconCacheTest, DrawsFromMemoryAndOncePerIconAtATime) {
    folder.put(folder.icon(0), IconFolder::picture(Qt::red));
    cache.insert(folder.icon(0), IconFolder::picture(Qt::green));
    std::promise<void> asked;
    small.files.setRule([&, first = std::make_shared<std::once_flag>()](const FileOperation&) {
        std::call_once(*first, [&] { asked.get_future().wait(); });
        return std::nullopt;
    });
    small.files.forget();
    for (int i = 0; i < 3; ++i)
        cache.generateThumbnails(folder.icon(0));
    asked.set_value();
    cache.waitForThumbnails();
    small.files.failNothing();
    EXPECT_EQ(log.count("✅ Thumbnails created at: " + folder.icon(0).string()), 1u);
    EXPECT_THAT(small.files.journal(), Contains("exists " + folder.icon(0).string()).Times(1));
    EXPECT_THAT(small.files.journal(), Not(Contains(HasSubstr("read "))));
    EXPECT_EQ(colourOf(cache.thumbnail(folder.icon(0), ThumbnailSize::x2)), QColor(Qt::green));

    cache.generateThumbnails(folder.icon(7));
    cache.waitForThumbnails();
    EXPECT_TRUE(log.has("IconCache: Original file doesn't exist at " + folder.icon(7).string()));
}

TEST_F(IconCacheTest, EndsWithoutWorkingOffWhatIsQueued) {
    std::promise<void> leaving;
    small.files.setRule([&, first = std::make_shared<std::once_flag>()](const FileOperation&) {
        std::call_once(*first, [&] {
            leaving.get_future().wait();
            std::this_thread::sleep_for(std::chrono::milliseconds(200)); // until the end has begun
        });
        return std::nullopt;
    });
    QObject context;
    {
        IconCache ending(small.files);
        for (int i = 0; i < 500; ++i) {
            ending.generateThumbnails(folder.icon(i));
            ending.loadImage(folder.icon(i), &context, [](const QImage&) {});
        }
        leaving.set_value();
    }
    EXPECT_LT(small.files.count(), 500u);
    small.files.failNothing();
}

} // namespace
} // namespace tavrik::test
