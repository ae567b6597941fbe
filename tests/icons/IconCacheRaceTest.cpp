#include "icons/IconCacheStage.h"

#include <gmock/gmock.h>

#include <atomic>
#include <functional>
#include <future>
#include <thread>

namespace tavrik::test {
namespace {

/// Stops at the moments before every operation and after every reading.
class WatchedFiles : public FailingFileManager {
public:
    explicit WatchedFiles(FileManager& files) : FailingFileManager(files) {
        setRule([this](const FileOperation&) {
            moment();
            return std::nullopt;
        });
    }

    /// Runs at the moment of that number, from 1.
    void at(int number, std::function<void()> action) {
        m_left = number;
        m_action = std::move(action);
    }

    bool hasRun() const { return m_left <= 0; }

    Result<Bytes> read(const MacPath& path, std::size_t most) const override {
        auto content = FailingFileManager::read(path, most);
        moment();
        return content;
    }

private:
    void moment() const {
        if (--m_left == 0)
            m_action();
    }

    mutable std::atomic<int> m_left = 0;
    std::function<void()> m_action;
};

class IconCacheRaceTest : public testing::Test {
protected:
    /// The red icon 0 goes, and the green icon 1 becomes icon 0, in the order that the store keeps to.
    void removeFirst(IconCache& cache) { removeFirst(cache, raw); }

    void removeFirst(IconCache& cache, FileManager& files) {
        ignoreFailure(files.remove(folder.icon(0)));
        cache.remove(folder.icon(0));
        for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2})
            ignoreFailure(files.remove(thumbnailPath(folder.icon(0), size)));
        ignoreFailure(files.move(folder.icon(1), folder.icon(0)));
        cache.remove(folder.icon(1));
        for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2})
            ignoreFailure(
                files.replace(thumbnailPath(folder.icon(0), size), thumbnailPath(folder.icon(1), size)));
    }

    void putBoth(bool withThumbnails) {
        for (const auto& [index, picture] : {std::pair{0, &red}, {1, &green}}) {
            folder.put(folder.icon(index), *picture);
            for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2}) {
                const MacPath thumbnail = thumbnailPath(folder.icon(index), size);
                if (withThumbnails)
                    folder.put(thumbnail, picture->scaled(static_cast<int>(size), static_cast<int>(size)));
                else
                    ignoreFailure(raw.remove(thumbnail));
            }
        }
    }

    /// In memory and on disk.
    void expectOnlyGreen(IconCache& cache) {
        cache.waitForThumbnails();
        EXPECT_EQ(colourOf(cache.loadImage(folder.icon(0))), QColor(Qt::green));
        for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2}) {
            EXPECT_EQ(colourOf(cache.thumbnail(folder.icon(0), size)), QColor(Qt::green));
            EXPECT_EQ(colourOf(IconCache(raw).thumbnail(folder.icon(0), size)), QColor(Qt::green));
            EXPECT_TRUE(cache.thumbnail(folder.icon(1), size).isNull());
            EXPECT_FALSE(raw.exists(thumbnailPath(folder.icon(1), size)));
        }
        EXPECT_TRUE(cache.loadImage(folder.icon(1)).isNull());
    }

    using Reading = std::function<void(IconCache&)>;
    /// One run: stops at the moment of that number, and says whether there was one.
    using Run = std::function<bool(const Reading&, int moment)>;

    /// Every reading of both icons, with and without thumbnail files, at every moment of the run.
    void sweep(const Run& run, int leastMoments) {
        const std::map<std::string, std::function<void(IconCache&, const MacPath&)>> readings{
            {"load", [](IconCache& cache, const MacPath& icon) { cache.loadImage(icon); }},
            {"thumbnail",
             [](IconCache& cache, const MacPath& icon) { cache.thumbnail(icon, ThumbnailSize::x1); }},
            {"generate", [](IconCache& cache, const MacPath& icon) { cache.generateThumbnails(icon); }},
        };
        int moments = 0;
        for (const auto& [what, reading] : readings) {
            for (const int index : {0, 1}) {
                for (const bool withThumbnails : {false, true}) {
                    for (int moment = 1;; ++moment, ++moments) {
                        SCOPED_TRACE(what + " of " + std::to_string(index) +
                                     (withThumbnails ? " made" : " unmade") + " at moment " +
                                     std::to_string(moment));
                        putBoth(withThumbnails);
                        const auto read = [&](IconCache& cache) {
                            reading(cache, folder.icon(index));
                            cache.waitForThumbnails();
                        };
                        if (!run(read, moment))
                            break;
                    }
                }
            }
        }
        EXPECT_GE(moments, leastMoments);
    }

    const QImage red = IconFolder::picture(Qt::red, {200, 200});
    const QImage green = IconFolder::picture(Qt::green, {200, 200});
    SmallMac small;
    FileManager& raw = small.practice.mac().files;
    IconFolder folder{raw};
};

TEST_F(IconCacheRaceTest, NothingStaleOutlivesARemovalAtAnyMomentOfAReadingOrMaking) {
    const auto run = [this](const Reading& read, int moment) {
        WatchedFiles files(raw);
        IconCache cache(files);
        std::future<void> removal;
        files.at(moment, [&] {
            removal = std::async(std::launch::async, [&] {
                removeFirst(cache);
                cache.generateThumbnails(folder.icon(0)); // beside the making that is under way for the red one
            });
            // In the middle of a commit it has to wait for the end of that.
            removal.wait_for(std::chrono::milliseconds(30));
        });
        read(cache);
        if (!files.hasRun())
            return false;
        removal.get();
        expectOnlyGreen(cache);
        return true;
    };
    sweep(run, 50);
}

TEST_F(IconCacheRaceTest, NothingStaleComesInAtAnyMomentOfARemoval) {
    const auto run = [this](const Reading& read, int moment) {
        WatchedFiles files(raw);
        IconCache cache(raw);
        read(cache);
        files.at(moment, [&] { read(cache); });
        removeFirst(cache, files);
        if (files.hasRun())
            expectOnlyGreen(cache);
        return files.hasRun();
    };
    sweep(run, 50);
}

TEST_F(IconCacheRaceTest, ManyThreadsSeeAnIconAndNeverAStrangeOne) {
    IconCache cache(raw);
    putBoth(false);
    std::atomic<bool> ended = false;
    std::atomic<int> strange = 0;
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&, number] {
            const MacPath icon = folder.icon(number % 2);
            while (!ended) {
                const QColor colour =
                    colourOf(number < 2 ? cache.loadImage(icon) : cache.thumbnail(icon, ThumbnailSize::x2));
                if (colour.isValid() && colour != QColor(Qt::red) && colour != QColor(Qt::green))
                    ++strange;
            }
        });
    }
    for (int round = 0; round < 10; ++round) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5 * round));
        removeFirst(cache);
        if (round < 9)
            putBoth(false);
    }
    ended = true;
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(strange, 0);
    expectOnlyGreen(cache);
}

} // namespace
} // namespace tavrik::test
