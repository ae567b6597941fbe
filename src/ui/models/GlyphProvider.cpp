#include "ui/models/GlyphProvider.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace tavrik {

QImage GlyphProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    constexpr int kDefaultSide = 32; // pixels
    const QString name = id.section(QLatin1Char('/'), 0, 0);
    const QString colour = id.section(QLatin1Char('/'), 1, 1);
    const int side = requestedSize.width() > 0 ? requestedSize.width() : kDefaultSide;
    QFile file(QStringLiteral(":/qt/qml/Tavrik/qml/glyphs/%1.svg").arg(name));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (file.open(QIODevice::ReadOnly)) {
        QByteArray drawing = file.readAll();
        drawing.replace("currentColor", "#" + colour.right(6).toLatin1());
        QSvgRenderer renderer(drawing);
        QPainter painter(&image);
        renderer.render(&painter);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace tavrik
