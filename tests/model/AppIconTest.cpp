#include "model/AppIcon.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace tavrik {
namespace {

TEST(AppIcon, IsDecodedOnceForAllCopiesAndThreads) {
    std::atomic<int> reads = 0;
    const AppIcon icon(MacPath("/Applications/Atlas.app"), [&](const MacPath& path) {
        ++reads;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return QImage(static_cast<int>(path.string().size()), 1, QImage::Format_RGB32);
    });
    EXPECT_EQ(reads, 0);
    const AppIcon copy = icon;
    std::thread other([&] { EXPECT_EQ(copy.image().width(), 23); });
    EXPECT_EQ(icon.image().width(), 23);
    other.join();
    EXPECT_EQ(reads, 1);
    EXPECT_TRUE(AppIcon().image().isNull());
}

} // namespace
} // namespace tavrik
