#pragma once

#include "icons/IconCache.h"
#include "icons/IconMoves.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "platform/Png.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <set>

namespace tavrik::test {

inline const std::string kAtlas = "com.example.atlas";
inline constexpr std::initializer_list<ThumbnailSize> kThumbnailSizes{ThumbnailSize::x1, ThumbnailSize::x2};

/// Pictures of one colour each, a number from 1 to 255.
inline QImage picture(int colour, QSize size = {2, 2}) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(colour, 0, 0));
    return image;
}

/// In the middle; 0 for a null picture.
inline int colourOf(const QImage& image) {
    return image.isNull() ? 0 : image.pixelColor(image.width() / 2, image.height() / 2).red();
}

/// A bare Mac with icons.
struct IconStage {
    SmallMac mac;
    FileManager& disk{mac.practice.mac().files}; ///< never fails
    const MacPath support = SettingsManager(mac.mac).appSupportURL();
    const MacPath permanent = support / "IconCache" / kAtlas;
    const MacPath pending = support / "PendingChanges/Icons" / kAtlas;

    MacPath icon(int number) const { return permanent / iconFileName(number); }

    void putFile(const MacPath& path, int colour, QSize size = {2, 2}) {
        ASSERT_TRUE(disk.createFolder(path.parent()));
        ignoreFailure(disk.remove(path));
        ASSERT_TRUE(disk.create(path, *png::encode(picture(colour, size))));
    }

    /// With its thumbnails.
    void put(const MacPath& icon, int colour) {
        putFile(icon, colour);
        for (const ThumbnailSize size : kThumbnailSizes)
            putFile(thumbnailPath(icon, size), colour, QSize(1, 1) * static_cast<int>(size));
    }

    int colour(const MacPath& path) const {
        const auto data = disk.read(path);
        return data ? colourOf(png::decode(*data)) : 0;
    }

    /// Of the icons in a folder by number, those under temporary names included. A thumbnail that shows another
    /// icon than its own counts as a failure.
    std::vector<int> colours(const MacPath& folder) const {
        std::vector<int> found;
        const auto icons = numberedIcons(disk, folder, Temporaries::include);
        for (const NumberedIcon& icon : *icons) {
            found.push_back(colour(icon.path));
            for (const ThumbnailSize size : kThumbnailSizes)
                EXPECT_THAT(colour(thumbnailPath(icon.path, size)), testing::AnyOf(0, found.back()));
        }
        return found;
    }

    /// The permanent ones, then the pending ones.
    std::vector<int> colours() const {
        std::vector<int> all = colours(permanent);
        std::ranges::copy(colours(pending), std::back_inserter(all));
        return all;
    }
};

/// Everything that a run of the program builds.
struct IconProgram {
    explicit IconProgram(IconStage& stage)
        : settings(stage.mac.mac),
          cache(stage.mac.files),
          store(stage.mac.files, settings, cache),
          transfer(stage.mac.files, settings, store) {}

    SettingsManager settings;
    IconCache cache;
    IconStore store;
    IconTransfer transfer;
};

/// On a new stage each time, for every n that there is: `work`, in which one operation fails, the n-th of all,
/// or from the n-th that changes the disk on all of them, as after a kill; then `check`.
template<typename Setup, typename Work, typename Check>
void stopAtEveryOperation(Setup&& setup, Work&& work, Check&& check,
                          std::initializer_list<Times> ways = {Times::forGood, Times::once}) {
    static const std::set<std::string> kLooks{"exists", "attributes", "list",
                                              "read",   "readLink",   "resolveLinks"};
    for (const Times times : ways) {
        bool failed = true;
        for (std::size_t step = 1; failed && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE((times == Times::once ? "failed: " : "not reached: ") + std::to_string(step));
            IconStage stage;
            setup(stage);
            {
                IconProgram program(stage);
                std::size_t count = 0;
                stage.mac.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
                    const bool killed = times == Times::forGood && count >= step;
                    if (!killed && (times == Times::once || !kLooks.contains(operation.name)))
                        ++count;
                    return killed || count == step ? std::optional(EIO) : std::nullopt;
                });
                work(program);
                failed = count >= step;
                stage.mac.files.failNothing();
            }
            check(stage);
        }
    }
}

} // namespace tavrik::test
