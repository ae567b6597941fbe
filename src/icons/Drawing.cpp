#include "icons/Drawing.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <libdeflate.h>

#include <memory>

namespace tavrik {

namespace {

QByteArray borrowed(ByteView data) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data.data()),
                                   static_cast<qsizetype>(data.size()));
}

bool isEmbeddedPicture(QStringView link) {
    constexpr QLatin1String kPng("iVBORw0KGgo");
    constexpr QLatin1String kJpeg("/9j/");
    const qsizetype comma = link.indexOf(QLatin1Char(','));
    if (!link.startsWith(QLatin1String("data:")) || comma < 0)
        return false;
    const QStringView content = link.mid(comma + 1).trimmed();
    return content.startsWith(kPng) || content.startsWith(kJpeg);
}

} // namespace

bool refersToOtherFiles(ByteView drawing) {
    QXmlStreamReader reader(borrowed(drawing));
    reader.setNamespaceProcessing(false); // the renderer takes undeclared prefixes too
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::ProcessingInstruction)
            return true;
        if (token != QXmlStreamReader::StartElement || !reader.qualifiedName().endsWith(QLatin1String("image")))
            continue;
        for (const auto& attribute : reader.attributes()) {
            if (attribute.qualifiedName().endsWith(QLatin1String("href")) &&
                !isEmbeddedPicture(attribute.value().trimmed()))
                return true;
        }
    }
    return false;
}

std::optional<Bytes> decompressed(ByteView file) {
    constexpr std::size_t kSmallestFile = 18;
    constexpr std::size_t kLargestDrawing = 64u << 20;
    if (file.size() < kSmallestFile)
        return std::nullopt;
    const ByteView trailer = file.last(4); // the size of what is inside
    const std::size_t size = trailer[0] | std::size_t{trailer[1]} << 8 | std::size_t{trailer[2]} << 16 |
                             std::size_t{trailer[3]} << 24;
    if (size == 0 || size > kLargestDrawing)
        return std::nullopt;
    Bytes drawing(size);
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
        libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    if (!decompressor || libdeflate_gzip_decompress(decompressor.get(), file.data(), file.size(),
                                                    drawing.data(), size, nullptr) != LIBDEFLATE_SUCCESS)
        return std::nullopt;
    return drawing;
}

QImage render(ByteView drawing, int side) {
    QSvgRenderer renderer;
    if (!renderer.load(borrowed(drawing)))
        return QImage();
    QSizeF size = renderer.defaultSize();
    if (size.isEmpty())
        size = renderer.viewBoxF().size();
    if (size.isEmpty())
        return QImage();
    size.scale(side, side, Qt::KeepAspectRatio);
    QImage picture(size.toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    return picture;
}

} // namespace tavrik
