#pragma once

#include "icons/IconCache.h"
#include "icons/IconMoves.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "platform/Png.h"
#include "support/SmallMac.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik::test {

inline const std::string kAtlas = "com.example.atlas";

/// A bare Mac with icons of one colour each, told by a number from 1 to 255.
struct IconStoreStage {
    SmallMac mac;
    FileManager& disk{mac.practice.mac().files}; ///< never fails
    const MacPath support = SettingsManager(mac.mac).appSupportURL();
    const MacPath permanent = support / "IconCache" / kAtlas;
    const MacPath pending = support / "PendingChanges/Icons" / kAtlas;

    static QImage picture(int colour) {
        QImage image(2, 2, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor(colour, 0, 0));
        return image;
    }

    void putFile(const MacPath& path, int colour) {
        ASSERT_TRUE(disk.createFolder(path.parent()));
        ASSERT_TRUE(disk.create(path, *png::encode(picture(colour))));
    }

    /// With its thumbnails.
    void put(const MacPath& icon, int colour) {
        for (const MacPath& path :
             {icon, thumbnailPath(icon, ThumbnailSize::x1), thumbnailPath(icon, ThumbnailSize::x2)})
            putFile(path, colour);
    }

    /// 0 when there is no picture.
    int colour(const MacPath& path) const {
        const auto data = disk.read(path);
        return data ? png::decode(*data).pixelColor(0, 0).red() : 0;
    }

    /// Of the icons in a folder by number, those under temporary names included. A thumbnail that shows another
    /// icon than its own counts as a failure.
    std::vector<int> colours(const MacPath& folder) const {
        std::vector<int> found;
        const auto icons = numberedIcons(disk, folder, Temporaries::include);
        for (const NumberedIcon& icon : *icons) {
            found.push_back(colour(icon.path));
            for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2}) {
                const int thumbnail = colour(thumbnailPath(icon.path, size));
                EXPECT_TRUE(thumbnail == 0 || thumbnail == found.back()) << icon.path.string();
            }
        }
        return found;
    }
};

/// Everything that a run of the program builds.
struct IconProgram {
    explicit IconProgram(IconStoreStage& stage)
        : settings(stage.mac.mac),
          cache(stage.mac.files),
          store(stage.mac.files, settings, cache),
          transfer(stage.mac.files, settings, store) {}

    SettingsManager settings;
    IconCache cache;
    IconStore store;
    IconTransfer transfer;
};

inline bool changesTheDisk(const FileOperation& operation) {
    static const std::set<std::string> kLooks{"exists", "attributes", "list",
                                              "read",   "readLink",   "resolveLinks"};
    return !kLooks.contains(operation.name);
}

/// On a new stage each time, for every n that there is: `work`, in which one operation fails, the n-th of all,
/// or from the n-th that changes the disk on all of them, as after a kill; then `check`.
template<typename Setup, typename Work, typename Check>
void failAtEveryOperation(Times times, Setup&& setup, Work&& work, Check&& check) {
    bool failed = true;
    for (std::size_t step = 1; failed && !testing::Test::HasFailure(); ++step) {
        SCOPED_TRACE("operation " + std::to_string(step) +
                     (times == Times::once ? " fails" : " is not reached"));
        IconStoreStage stage;
        setup(stage);
        {
            IconProgram program(stage);
            std::size_t count = 0;
            stage.mac.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
                const bool killed = times == Times::forGood && count >= step;
                count += killed || times == Times::once || changesTheDisk(operation) ? 1 : 0;
                return count == step || (killed && count > step) ? std::optional(EIO) : std::nullopt;
            });
            work(program);
            failed = count >= step;
            stage.mac.files.failNothing();
        }
        check(stage);
    }
}

template<typename Setup, typename Work, typename Check>
void stopAtEveryOperation(Setup&& setup, Work&& work, Check&& check) {
    for (const Times times : {Times::forGood, Times::once})
        failAtEveryOperation(times, setup, work, check);
}

} // namespace tavrik::test
