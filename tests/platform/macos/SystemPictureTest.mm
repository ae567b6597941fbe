#include "platform/SystemPicture.h"

#include "platform/macos/PictureConversion.h"

#include <QColor>

#import <Foundation/Foundation.h>
#import <ImageIO/ImageIO.h>
#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

using macos::CFOwned;

/// Its upper half red, its lower half blue, as ImageIO writes it.
Bytes coded(NSString* kind, NSDictionary* properties) {
    QImage picture(64, 32, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, y, y < 16 ? QColor(250, 10, 10) : QColor(10, 10, 250));
    NSMutableData* const data = [NSMutableData data];
    const CFOwned<CGImageRef> image = macos::toCGImage(picture);
    const CFOwned destination(CGImageDestinationCreateWithData((__bridge CFMutableDataRef)data,
                                                               (__bridge CFStringRef)kind, 1, nullptr));
    if (!destination)
        return {};
    CGImageDestinationAddImage(destination.get(), image.get(), (__bridge CFDictionaryRef)properties);
    if (!CGImageDestinationFinalize(destination.get()))
        return {};
    const auto* const bytes = static_cast<const std::uint8_t*>(data.bytes);
    return Bytes(bytes, bytes + data.length);
}

bool isRed(const QColor& colour) {
    return colour.red() > 200 && colour.blue() < 60;
}

} // namespace

TEST(MacosSystemPicture, ReadsWhatTheSystemWroteUpright) {
    constexpr int upsideDown = 3;
    for (NSString* kind in @[ @"public.jpeg-2000", @"public.heic" ]) {
        const Bytes file = coded(kind, @{});
        ASSERT_FALSE(file.empty()) << kind.UTF8String;
        EXPECT_EQ(sizeOfSystemPicture(file), QSize(64, 32)) << kind.UTF8String;
        const QImage picture = decodedBySystem(file);
        ASSERT_EQ(picture.size(), QSize(64, 32)) << kind.UTF8String;
        EXPECT_TRUE(isRed(picture.pixelColor(32, 8)) && !isRed(picture.pixelColor(32, 24)));
        for (std::size_t length = 0; length < file.size() / 2; length += 11) {
            const QImage cut = decodedBySystem(ByteView(file).first(length));
            EXPECT_TRUE(cut.isNull() || cut.size() == picture.size()) << length;
        }
    }
    const Bytes turned = coded(
        @"public.heic",
        @{(__bridge NSString*)kCGImagePropertyOrientation : @(upsideDown)});
    EXPECT_TRUE(isRed(decodedBySystem(turned).pixelColor(32, 24)));
    EXPECT_EQ(sizeOfSystemPicture(coded(@"public.png", @{})), std::nullopt) << "left to Qt";
}

} // namespace tavrik::test
