#include "icons/BoundedImageCache.h"

#include <gtest/gtest.h>

namespace tavrik {
namespace {

QImage pictureOf(int kilobytes) {
    return QImage(256, kilobytes, QImage::Format_ARGB32_Premultiplied);
}

MacPath pathOf(int number) {
    return MacPath("/" + std::to_string(number));
}

TEST(BoundedImageCache, LetsTheLongestUnseenGoAtEitherLimit) {
    struct Case {
        const char* what;
        std::size_t countLimit;
        std::size_t kilobytes;
    };

    for (const auto& [what, countLimit, kilobytes] : {Case{"count", 3, 1000}, Case{"bytes", 100, 35}}) {
        SCOPED_TRACE(what);
        BoundedImageCache cache(countLimit, kilobytes << 10);
        for (int number : {1, 2, 3})
            cache.insert(pathOf(number), pictureOf(10));
        EXPECT_TRUE(cache.find(pathOf(1)));
        cache.insert(pathOf(4), pictureOf(10));
        EXPECT_FALSE(cache.find(pathOf(2)));
        for (int number : {1, 3, 4})
            EXPECT_TRUE(cache.find(pathOf(number))) << number;
        EXPECT_EQ(cache.totalCost(), 30u << 10);
    }
}

TEST(BoundedImageCache, CountsEveryPictureOnceHoweverItComesAndGoes) {
    BoundedImageCache cache(10, 50u << 10);
    cache.insert(pathOf(1), pictureOf(40));
    cache.insert(pathOf(1), pictureOf(20));
    EXPECT_EQ(cache.totalCost(), 20u << 10);
    EXPECT_EQ(cache.find(pathOf(1))->height(), 20);

    cache.insert(pathOf(2), pictureOf(30));
    cache.insert(pathOf(1), pictureOf(51)); // larger than all: neither kept nor a reason for others to go
    EXPECT_FALSE(cache.find(pathOf(1)));
    EXPECT_TRUE(cache.find(pathOf(2)));
    cache.remove(pathOf(2));
    cache.remove(pathOf(2));
    EXPECT_EQ(cache.totalCost(), 0u);
    EXPECT_EQ(cache.count(), 0u);
}

} // namespace
} // namespace tavrik
