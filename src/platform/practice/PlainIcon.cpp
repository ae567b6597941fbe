#include "platform/practice/PlainIcon.h"

#include <QPainter>
#include <QPainterPath>

namespace tavrik::practice {

namespace {

constexpr int kSide = 512;
const QColor kOutline(0x8E, 0x8E, 0x93);

void drawSheet(QPainter& painter) {
    constexpr qreal kFold = 96;
    const QRectF sheet(96, 32, 320, 448);
    QPainterPath outline(sheet.topLeft());
    outline.lineTo(sheet.right() - kFold, sheet.top());
    outline.lineTo(sheet.right(), sheet.top() + kFold);
    outline.lineTo(sheet.bottomRight());
    outline.lineTo(sheet.bottomLeft());
    outline.closeSubpath();
    painter.setBrush(Qt::white);
    painter.drawPath(outline);
    painter.drawPolyline(QPolygonF({QPointF(sheet.right() - kFold, sheet.top()),
                                    QPointF(sheet.right() - kFold, sheet.top() + kFold),
                                    QPointF(sheet.right(), sheet.top() + kFold)}));
}

void drawFolder(QPainter& painter) {
    painter.setBrush(QColor(0x5A, 0xB0, 0xE8));
    painter.drawRoundedRect(QRectF(40, 96, 192, 96), 24, 24);
    painter.drawRoundedRect(QRectF(40, 136, 432, 288), 24, 24);
}

void drawApplication(QPainter& painter) {
    painter.setBrush(QColor(0xE5, 0xE5, 0xEA));
    painter.drawRoundedRect(QRectF(56, 56, 400, 400), 90, 90);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(256, 256), 120, 120);
    painter.drawLine(QPointF(256, 136), QPointF(256, 376));
    painter.drawLine(QPointF(136, 256), QPointF(376, 256));
}

} // namespace

QImage drawPlainIcon(PlainIcon kind) {
    QImage icon(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kOutline, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (kind) {
    case PlainIcon::document:
        drawSheet(painter);
        break;
    case PlainIcon::folder:
        drawFolder(painter);
        break;
    case PlainIcon::application:
        drawApplication(painter);
        break;
    }
    return icon;
}

} // namespace tavrik::practice
