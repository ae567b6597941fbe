#include "practice/picture/Easel.h"

#include "practice/art/OutlinePath.h"
#include "practice/art/SoftShadow.h"

#include <QFontMetricsF>

#include <cmath>
#include <utility>

namespace tavrik::practice {

namespace {

/// Titles are anybody's: a line break or a tab in one must not break the line.
QString singleLine(const std::string& text) {
    QString line = QString::fromStdString(text);
    for (QChar& c : line) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return line;
}

} // namespace

Easel::Easel(QPainter& painter, const Look& look, IconSource& icons, PictureMap& map, double scale)
    : m_painter(painter),
      m_look(look),
      m_icons(icons),
      m_map(map),
      m_scale(scale) {}

int Easel::pixels(double points) const {
    return static_cast<int>(std::lround(points * m_scale));
}

void Easel::drawIcon(const QPointF& corner, const QImage& icon) {
    QImage sharp = icon;
    sharp.setDevicePixelRatio(m_scale);
    m_painter.drawImage(corner, sharp);
}

void Easel::note(Spot spot, const QPointF& corner, double size) {
    spot.icon = QRectF(corner * m_scale, QSizeF(size, size) * m_scale);
    m_map.spots.push_back(std::move(spot));
}

void Easel::drawTitle(const QRectF& space, const std::string& text, const QFont& font) {
    const QString title = singleLine(text);
    const QFont titleFont = Look::fontFor(title, font);
    m_painter.setFont(titleFont);
    m_painter.setPen(m_look.title);
    m_painter.drawText(space, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine,
                       QFontMetricsF(titleFont).elidedText(title, Qt::ElideRight, space.width()));
}

void Easel::drawText(const QPointF& baseline, const QString& text, const QFont& font, const QColor& colour) {
    m_painter.setFont(font);
    m_painter.setPen(colour);
    m_painter.drawText(baseline, text);
}

void Easel::drawPanel(const QRectF& bounds, double corner) {
    constexpr double kBlur = 18;
    constexpr double kDrop = 8;
    const QRectF around = bounds.adjusted(-2 * kBlur, -2 * kBlur, 2 * kBlur, 2 * kBlur + kDrop);
    QPainterPath outline;
    outline.addRoundedRect(bounds, corner, corner);

    QImage shape(around.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter shaper(&shape);
    shaper.setRenderHint(QPainter::Antialiasing);
    shaper.translate(-around.topLeft());
    shaper.fillPath(outline.translated(0, kDrop), Qt::black);
    shaper.end();

    // The sheet is translucent: its own shadow must not darken it from behind.
    m_painter.save();
    QPainterPath outside;
    outside.addRect(around);
    m_painter.setClipPath(outside.subtracted(outline));
    drawSoftShadow(m_painter, QRectF(around.topLeft(), QSizeF(shape.size())), shape, kBlur, m_look.shadow);
    m_painter.restore();

    m_painter.setPen(QPen(m_look.panelBorder, 1));
    m_painter.setBrush(m_look.panel);
    m_painter.drawRoundedRect(bounds.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

void Easel::drawApp(const QPointF& cell, double width, const LaunchpadApp& app, const std::string& where) {
    const QPointF corner(std::floor(cell.x() + (width - kIconSize) / 2), std::floor(cell.y()));
    drawIcon(corner, m_icons.application(app.path, pixels(kIconSize)));
    note({where, app.title, app.bundleID, app.path, {}}, corner, kIconSize);
    drawTitle(QRectF(cell.x() + 4, cell.y() + kIconSize + 2, width - 8, 20), app.title, m_look.titleFont);
}

void Easel::drawFolder(const QPointF& cell, double width, const LaunchpadFolder& folder,
                       const std::string& where) {
    constexpr int kAcross = 3;
    constexpr double kTile = 74;
    constexpr double kMini = 20;
    constexpr double kGap = 1;
    const QPointF corner(std::floor(cell.x() + (width - kIconSize) / 2), std::floor(cell.y()));
    const QPointF tile = corner + QPointF((kIconSize - kTile) / 2, (kIconSize - kTile) / 2);
    m_painter.setPen(QPen(m_look.panelBorder, 1));
    m_painter.setBrush(m_look.folderTile);
    m_painter.drawPath(superellipse(QRectF(tile, QSizeF(kTile, kTile))));

    const double inset = (kTile - kAcross * kMini - (kAcross - 1) * kGap) / 2;
    int place = 0;
    for (const auto& page : folder.pages) {
        for (const LaunchpadApp& app : page) {
            if (place >= kAcross * kAcross)
                break;
            const int row = place / kAcross;
            const QPointF at(inset + (place % kAcross) * (kMini + kGap), inset + row * (kMini + kGap));
            drawIcon(tile + at, m_icons.application(app.path, pixels(kMini)));
            ++place;
        }
    }
    note({where, folder.title, {}, {}, {}}, corner, kIconSize);
    drawTitle(QRectF(cell.x() + 4, cell.y() + kIconSize + 2, width - 8, 20), folder.title, m_look.titleFont);
}

} // namespace tavrik::practice
