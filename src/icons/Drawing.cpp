#include "icons/Drawing.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

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
