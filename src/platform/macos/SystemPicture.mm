#include "platform/SystemPicture.h"

#include "platform/macos/PictureConversion.h"

#import <Foundation/Foundation.h>
#import <ImageIO/ImageIO.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace tavrik {

namespace {

using macos::CFOwned;
using namespace std::string_view_literals;

bool isJPEG2000(std::string_view data) {
    return data.starts_with("\0\0\0\x0CjP  \r\n\x87\n"sv) || data.starts_with("\xFF\x4F\xFF\x51");
}

/// By the brand of the container, which follows the length and the name of its first box.
bool isHEIC(std::string_view data) {
    constexpr std::array kBrands{"heic"sv, "heix"sv, "heim"sv, "heis"sv, "mif1"sv};
    return data.substr(0, 8).ends_with("ftyp") &&
           std::ranges::find(kBrands, data.substr(8, 4)) != kBrands.end();
}

/// Borrows the bytes.
CFOwned<CGImageSourceRef> openSource(ByteView data) {
    if (!isJPEG2000(textOf(data.first(std::min<std::size_t>(data.size(), 16)))) && !isHEIC(textOf(data)))
        return {};
    const CFOwned bytes(CFDataCreateWithBytesNoCopy(kCFAllocatorDefault, data.data(),
                                                    static_cast<CFIndex>(data.size()), kCFAllocatorNull));
    if (!bytes)
        return {};
    return CFOwned(CGImageSourceCreateWithData(bytes.get(), nullptr));
}

int pixels(NSDictionary* properties, CFStringRef key) {
    NSNumber* const number = properties[(__bridge NSString*)key];
    return [number isKindOfClass:NSNumber.class] ? number.intValue : 0;
}

QSize sizeIn(CGImageSourceRef source) {
    NSDictionary* const properties = CFBridgingRelease(CGImageSourceCopyPropertiesAtIndex(source, 0, nullptr));
    return {pixels(properties, kCGImagePropertyPixelWidth), pixels(properties, kCGImagePropertyPixelHeight)};
}

/// The system applies a recorded orientation to what it calls thumbnails alone: one of full size is asked for.
CFOwned<CGImageRef> uprightImage(CGImageSourceRef source, int side) {
    NSDictionary* const options = @{
        (__bridge NSString*)kCGImageSourceCreateThumbnailFromImageAlways : @YES,
        (__bridge NSString*)kCGImageSourceCreateThumbnailWithTransform : @YES,
        (__bridge NSString*)kCGImageSourceThumbnailMaxPixelSize : @(side),
    };
    return CFOwned(CGImageSourceCreateThumbnailAtIndex(source, 0, (__bridge CFDictionaryRef)options));
}

constexpr std::array kExtensions{"heic"sv, "heif"sv, "jp2"sv, "jpf"sv, "jpx"sv, "j2k"sv};

} // namespace

std::span<const std::string_view> systemPictureExtensions() {
    return kExtensions;
}

std::optional<QSize> sizeOfSystemPicture(ByteView data) {
    @autoreleasepool {
        const CFOwned<CGImageSourceRef> source = openSource(data);
        const QSize size = source ? sizeIn(source.get()) : QSize();
        return size.isEmpty() ? std::nullopt : std::optional(size);
    }
}

QImage decodedBySystem(ByteView data) {
    @autoreleasepool {
        const CFOwned<CGImageSourceRef> source = openSource(data);
        const QSize stated = source ? sizeIn(source.get()) : QSize();
        if (stated.isEmpty())
            return {};
        const CFOwned<CGImageRef> image = uprightImage(source.get(), std::max(stated.width(), stated.height()));
        if (!image)
            return {};
        const QSize size(static_cast<int>(CGImageGetWidth(image.get())),
                         static_cast<int>(CGImageGetHeight(image.get())));
        return macos::drawn(size, [&](CGContextRef context) {
            CGContextDrawImage(context, CGRectMake(0, 0, size.width(), size.height()), image.get());
        });
    }
}

} // namespace tavrik
