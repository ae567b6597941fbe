#include "platform/macos/PictureConversion.h"

#include "platform/StandardPicture.h"

#include <QColorSpace>

namespace tavrik::macos {

namespace {

constexpr std::size_t kBitsPerChannel = 8;
constexpr std::size_t kBitsPerPixel = 32;

/// How QImage's premultiplied 32-bit form lies in memory: one number a pixel, alpha in its highest byte.
constexpr auto kPixelForm = static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                            static_cast<std::uint32_t>(kCGBitmapByteOrder32Host);

CFOwned<CGColorSpaceRef> standardColours() {
    return CFOwned(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
}

} // namespace

CFOwned<CGImageRef> toCGImage(const QImage& picture) {
    const QImage standard = standardised(picture);
    if (standard.isNull())
        return {};
    const CFOwned pixels(CFDataCreate(kCFAllocatorDefault, standard.constBits(), standard.sizeInBytes()));
    if (!pixels)
        return {};
    const CFOwned provider(CGDataProviderCreateWithCFData(pixels.get()));
    const CFOwned<CGColorSpaceRef> colours = standardColours();
    return CFOwned(CGImageCreate(static_cast<std::size_t>(standard.width()),
                                 static_cast<std::size_t>(standard.height()), kBitsPerChannel, kBitsPerPixel,
                                 static_cast<std::size_t>(standard.bytesPerLine()), colours.get(), kPixelForm,
                                 provider.get(), nullptr, true, kCGRenderingIntentDefault));
}

QImage drawn(QSize size, const std::function<void(CGContextRef)>& draw) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return {};
    picture.fill(Qt::transparent);
    picture.setColorSpace(QColorSpace::SRgb);
    const CFOwned<CGColorSpaceRef> colours = standardColours();
    const CFOwned context(CGBitmapContextCreate(
        picture.bits(), static_cast<std::size_t>(size.width()), static_cast<std::size_t>(size.height()),
        kBitsPerChannel, static_cast<std::size_t>(picture.bytesPerLine()), colours.get(), kPixelForm));
    if (!context)
        return {};
    CGContextSetInterpolationQuality(context.get(), kCGInterpolationHigh);
    draw(context.get());
    CGContextFlush(context.get());
    return picture;
}

} // namespace tavrik::macos
