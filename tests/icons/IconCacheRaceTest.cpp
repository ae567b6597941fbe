#include "IconStage.h"

#include <atomic>
#include <functional>
#include <future>

namespace tavrik::test {
namespace {

/// Does something at one of the moments before every operation and after every reading, counted from 1.
class WatchedFiles : public FailingFileManager {
public:
    using FailingFileManager::FailingFileManager;

    void at(int moment, std::function<void()> action) {
        m_left = moment;
        m_action = std::move(action);
        setRule([this](const FileOperation&) { return pass(); });
    }

    bool hasRun() const { return m_left <= 0; }

    Result<Bytes> read(const MacPath& path, std::size_t most) const override {
        auto content = FailingFileManager::read(path, most);
        pass();
        return content;
    }

private:
    std::optional<int> pass() const {
        if (--m_left == 0)
            m_action();
        return std::nullopt;
    }

    mutable std::atomic<int> m_left = 0;
    std::function<void()> m_action;
};

using Reading = std::function<void(IconCache&, const MacPath&)>;

const std::map<std::string, Reading> kReadings{
    {"load", [](auto& cache, const auto& icon) { cache.loadImage(icon); }},
    {"thumbnail", [](auto& cache, const auto& icon) { cache.thumbnail(icon, ThumbnailSize::x1); }},
    {"generate", [](auto& cache, const auto& icon) { cache.generateThumbnails(icon); }},
};

/// Icon 0 goes while it, or icon 1, which takes its place, is read.
struct IconCacheRaceTest : testing::Test {
    IconStage stage;
    SettingsManager settings{stage.mac.mac};

    void removeFirst(IconCache& cache, FileManager& files) {
        IconStore(files, settings, cache).deleteIconAndReindex(kAtlas, 0);
    }

    /// In memory and on disk.
    void expectOnlyTheSecond(IconCache& cache) {
        cache.waitForThumbnails();
        EXPECT_EQ(colourOf(cache.loadImage(stage.icon(0))), 2);
        EXPECT_TRUE(cache.loadImage(stage.icon(1)).isNull());
        for (const ThumbnailSize size : kThumbnailSizes) {
            EXPECT_EQ(colourOf(cache.thumbnail(stage.icon(0), size)), 2);
            EXPECT_EQ(colourOf(IconCache(stage.disk).thumbnail(stage.icon(0), size)), 2);
            EXPECT_TRUE(cache.thumbnail(stage.icon(1), size).isNull());
            EXPECT_FALSE(stage.disk.exists(thumbnailPath(stage.icon(1), size)));
        }
    }

    void putBoth(bool withThumbnails) {
        for (const int number : {0, 1}) {
            stage.put(stage.icon(number), number + 1);
            ASSERT_TRUE(withThumbnails || clearThumbnails(stage.disk, stage.icon(number)));
        }
    }

    /// Every reading of both icons, with and without thumbnail files, in every run: one in which something
    /// happens at the moment of that number, false when there is no such moment.
    template<typename Run>
    void sweep(Run&& run) {
        int moments = 0;
        for (const auto& [what, reading] : kReadings) {
            for (const int kind : {0, 1, 2, 3}) {
                const auto read = [&, &reading = reading](IconCache& cache) {
                    reading(cache, stage.icon(kind % 2));
                    cache.waitForThumbnails();
                };
                for (int moment = 1; putBoth(kind > 1), run(read, moment); ++moment, ++moments)
                    ASSERT_FALSE(HasFailure()) << what << " " << kind << " at moment " << moment;
            }
        }
        EXPECT_GE(moments, 50);
    }
};

TEST_F(IconCacheRaceTest, NothingStaleOutlivesARemovalAtAnyMomentOfAReadingOrMaking) {
    sweep([this](const auto& read, int moment) {
        WatchedFiles files(stage.disk);
        IconCache cache(files);
        std::future<void> removal;
        files.at(moment, [&] {
            removal = std::async(std::launch::async, [&] {
                removeFirst(cache, stage.disk);
                cache.generateThumbnails(stage.icon(0)); // beside the making that is under way for the first
            });
            // In the middle of a commit it has to wait for the end of that.
            removal.wait_for(std::chrono::milliseconds(30));
        });
        read(cache);
        if (!files.hasRun())
            return false;
        removal.get();
        expectOnlyTheSecond(cache);
        return true;
    });
}

TEST_F(IconCacheRaceTest, NothingStaleComesInAtAnyMomentOfARemoval) {
    sweep([this](const auto& read, int moment) {
        WatchedFiles files(stage.disk);
        IconCache cache(stage.disk);
        read(cache);
        files.at(moment, [&] { read(cache); });
        removeFirst(cache, files);
        if (files.hasRun())
            expectOnlyTheSecond(cache);
        return files.hasRun();
    });
}

} // namespace
} // namespace tavrik::test
