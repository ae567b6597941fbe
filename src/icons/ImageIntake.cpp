#include "icons/ImageIntake.h"

#include "icons/Drawing.h"
#include "icons/PictureFormat.h"
#include "platform/Icns.h"
#include "platform/Png.h"
#include "platform/StandardPicture.h"
#include "platform/SystemPicture.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <string>

namespace tavrik {

namespace {

constexpr int kDrawingSide = 1024; ///< pixels of a drawing's longer side

std::string whatWorks() {
    if (systemPictureExtensions().empty())
        return "Use a PNG, JPEG, TIFF, WebP, GIF, BMP, SVG, ICO or ICNS picture.";
    return "Use a PNG, JPEG, HEIC, TIFF, WebP, GIF, BMP, JPEG 2000, SVG, ICO or ICNS picture.";
}

class Refusal {
public:
    explicit Refusal(std::string_view name) : m_name(name) {}

    Error unknown() const { return because("is not a picture of a kind that can be read", whatWorks()); }

    Error empty() const { return because("is empty", whatWorks()); }

    Error cutShort() const {
        return because("is cut short: it ends before the picture does", "Copy, export or download it again.");
    }

    Error damaged() const {
        return because("is damaged and cannot be read",
                       "Open it in a picture editor and export it again as PNG.");
    }

    Error tooLarge(QSize size) const {
        return because("is too large: " + std::to_string(size.width()) + " by " +
                           std::to_string(size.height()) + " pixels",
                       "Scale it down; 1024 by 1024 pixels is all that an icon needs, and " +
                           std::to_string(kLargestPictureSide) + " a side is the most that is read.");
    }

    Error unreadableIcon() const {
        return because("is an icon file without a picture that can be read here",
                       "Open it in a picture editor and export its largest picture as PNG.");
    }

    Error unreadableDrawing() const {
        return because("is a drawing that cannot be read", "Export it again as plain SVG, or as PNG.");
    }

    Error incompleteDrawing() const {
        return because("is a drawing that takes in other files",
                       "Export it with its pictures embedded, or as PNG.");
    }

private:
    Error because(const std::string& what, const std::string& remedy) const {
        return {"“" + m_name + "” " + what + ". " + remedy, 0};
    }

    const std::string m_name;
};

QByteArray borrowed(ByteView data) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data.data()),
                                   static_cast<qsizetype>(data.size()));
}

const char* readerName(PictureFormat format) {
    switch (format) {
    case PictureFormat::png:
        return "png";
    case PictureFormat::jpeg:
        return "jpeg";
    case PictureFormat::tiff:
        return "tiff";
    case PictureFormat::webp:
        return "webp";
    case PictureFormat::gif:
        return "gif";
    default:
        return "bmp";
    }
}

bool isTooLarge(QSize size, int bitsPerPixel) {
    const std::size_t pixels = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    return std::max(size.width(), size.height()) > kLargestPictureSide ||
           pixels * static_cast<std::size_t>(bitsPerPixel) / 8 > kLargestPictureBytes;
}

/// Of a decoded pixel; 32 where the reader does not say.
int bitsPerPixel(QImage::Format format) {
    return format == QImage::Format_Invalid ? 32
                                            : std::max(32, int{QImage::toPixelFormat(format).bitsPerPixel()});
}

/// Qt refuses pictures above 128 MB unless told otherwise, for the process as a whole.
void allowLargePictures() {
    static const bool done = [] {
        QImageReader::setAllocationLimit(static_cast<int>(kLargestPictureBytes >> 20));
        return true;
    }();
    static_cast<void>(done);
}

/// Windows icons hold one picture in many sizes.
void goToLargest(QImageReader& reader) {
    int largest = 0;
    int width = 0;
    for (int place = 0; place < reader.imageCount(); ++place) {
        if (reader.jumpToImage(place) && reader.size().width() > width) {
            largest = place;
            width = reader.size().width();
        }
    }
    reader.jumpToImage(largest);
}

/// Without Qt's readers, which look through the folder of their plugins first.
Result<QImage> readPNG(ByteView data, const Refusal& refusal) {
    allowLargePictures();
    const auto extent = png::extent(data);
    if (!extent)
        return refusal.damaged();
    if (isTooLarge(extent->size, extent->bitsPerPixel))
        return refusal.tooLarge(extent->size);
    const QImage picture = png::decode(data);
    return picture.isNull() ? Result<QImage>(refusal.damaged()) : picture;
}

Result<QImage> readPixels(ByteView data, const QByteArray& format, const Refusal& refusal) {
    allowLargePictures();
    QByteArray bytes = borrowed(data);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (format == "ico" || format == "cur")
        goToLargest(reader);

    const QSize size = reader.size();
    if (size.isEmpty())
        return refusal.damaged();
    if (isTooLarge(size, bitsPerPixel(reader.imageFormat())))
        return refusal.tooLarge(size);
    const QImage picture = reader.read();
    if (picture.isNull())
        return refusal.damaged();
    return picture;
}

/// What the system alone knows, such as the photographs of its cameras.
Result<QImage> readBySystem(ByteView data, QSize size, const Refusal& refusal) {
    constexpr int mostBitsPerPixel = 64;
    if (isTooLarge(size, mostBitsPerPixel))
        return refusal.tooLarge(size);
    const QImage picture = decodedBySystem(data);
    return picture.isNull() ? Result<QImage>(refusal.damaged()) : picture;
}

Result<QImage> readDrawing(ByteView drawing, const Refusal& refusal) {
    if (refersToOtherFiles(drawing))
        return refusal.incompleteDrawing();
    const QImage picture = render(drawing, kDrawingSide);
    return picture.isNull() ? Result<QImage>(refusal.unreadableDrawing()) : standardised(picture);
}

} // namespace

Result<QImage> readPicture(ByteView data, std::string_view name) {
    const Refusal refusal(name);
    if (data.empty())
        return refusal.empty();
    const auto format = pictureFormat(data);
    if (format == PictureFormat::icns) {
        const QImage picture = icns::largestImage(data);
        return picture.isNull() ? Result<QImage>(refusal.unreadableIcon()) : standardised(picture);
    }
    if (format == PictureFormat::svg)
        return readDrawing(data, refusal);
    if (format == PictureFormat::compressedSvg) {
        const auto drawing = decompressed(data);
        if (!drawing)
            return refusal.unreadableDrawing();
        return pictureFormat(*drawing) == PictureFormat::svg ? readDrawing(*drawing, refusal)
                                                             : refusal.unknown();
    }
    if (const auto size = format ? std::nullopt : sizeOfSystemPicture(data))
        return readBySystem(data, *size, refusal);
    const QByteArray reader = format ? QByteArray(readerName(*format)) : pluginFormat(data);
    if (reader.isEmpty())
        return refusal.unknown();
    if (!(format ? holdsWholePicture(data, *format) : holdsWholePicture(data, reader)))
        return refusal.cutShort();
    const auto picture =
        format == PictureFormat::png ? readPNG(data, refusal) : readPixels(data, reader, refusal);
    return picture ? Result<QImage>(standardised(*picture)) : picture;
}

std::vector<std::string_view> pictureExtensions() {
    std::vector<std::string_view> extensions{"png", "jpg", "jpeg", "tif",  "tiff", "webp",
                                             "gif", "bmp", "svg",  "svgz", "ico",  "icns"};
    const auto ofSystem = systemPictureExtensions();
    extensions.insert(extensions.end(), ofSystem.begin(), ofSystem.end());
    return extensions;
}

} // namespace tavrik
