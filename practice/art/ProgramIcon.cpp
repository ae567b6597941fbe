#include "practice/art/ProgramIcon.h"

#include "practice/art/OutlinePath.h"
#include "practice/art/SoftShadow.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>

#include <initializer_list>
#include <utility>

namespace tavrik::practice {

namespace {

/// Everything is drawn on a canvas of 1024 units.
constexpr double kCanvas = 1024;

/// What differs where few pixels are left: shapes are larger, and what would only blur is left out.
struct Design {
    double plate; ///< half its width
    double sheet; ///< half its width
    double fold;  ///< the fold runs along x + y = fold; what lies beyond it is turned over
    bool depth;   ///< shadows and rims
};

constexpr Design kFull{412, 276, 1112, true};
constexpr Design kSmall{448, 320, 1120, false};

Design designFor(int points) {
    return points <= 32 ? kSmall : kFull;
}

QPainterPath tile(double halfWidth) {
    return superellipse(QRectF(kCanvas / 2 - halfWidth, kCanvas / 2 - halfWidth, 2 * halfWidth, 2 * halfWidth));
}

QLinearGradient along(QPointF from, QPointF to, std::initializer_list<std::pair<double, QColor>> stops) {
    QLinearGradient gradient(from, to);
    for (const auto& [position, colour] : stops)
        gradient.setColorAt(position, colour);
    return gradient;
}

QPainterPath beyond(double fold) {
    QPainterPath path(QPointF(kCanvas, fold - kCanvas));
    path.lineTo(kCanvas, kCanvas);
    path.lineTo(fold - kCanvas, kCanvas);
    path.closeSubpath();
    return path;
}

QTransform mirroredAt(double fold) {
    return QTransform(0, -1, -1, 0, fold, fold);
}

/// Shadows below shapes of the canvas, where the design has any.
class Shade {
public:
    Shade(QPainter& painter, int size) : m_painter(painter), m_size(size) {}

    void below(const QPainterPath& shape, QPointF offset, double blur, const QColor& colour) {
        QImage picture(m_size, m_size, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(m_size / kCanvas, m_size / kCanvas);
        painter.fillPath(shape, Qt::black);
        painter.end();
        drawSoftShadow(m_painter, QRectF(offset, QSizeF(kCanvas, kCanvas)), picture, blur * m_size / kCanvas,
                       colour);
    }

private:
    QPainter& m_painter;
    int m_size;
};

/// A thin line of light along the inside of a shape's upper edge.
void drawRim(QPainter& painter, const QPainterPath& shape, double width, int strength) {
    painter.save();
    painter.setClipPath(shape, Qt::IntersectClip);
    const QRectF bounds = shape.boundingRect();
    painter.strokePath(shape,
                       QPen(along(bounds.topLeft(), bounds.bottomLeft(),
                                  {{0, QColor(255, 255, 255, strength)}, {0.5, QColor(255, 255, 255, 0)}}),
                            2 * width));
    painter.restore();
}

void drawPlate(QPainter& painter, const QPainterPath& plate) {
    painter.fillPath(plate,
                     along({300, 100}, {720, 930},
                           {{0, QColor(92, 78, 196)}, {0.55, QColor(52, 40, 122)}, {1, QColor(28, 20, 74)}}));
    QRadialGradient glow(300, 160, 640);
    glow.setColorAt(0, QColor(168, 150, 255, 120));
    glow.setColorAt(1, QColor(168, 150, 255, 0));
    painter.fillPath(plate, glow);
    // The colours of the sheet shine onto the plate.
    QRadialGradient shine(720, 760, 400);
    shine.setColorAt(0, QColor(255, 96, 140, 90));
    shine.setColorAt(1, QColor(255, 96, 140, 0));
    painter.fillPath(plate, shine);
}

} // namespace

QImage drawProgramIcon(int size, int points) {
    const Design design = designFor(points);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(size / kCanvas, size / kCanvas);
    painter.setPen(Qt::NoPen);
    Shade shade(painter, size);

    const QPainterPath plate = tile(design.plate);
    const QPainterPath sheet = tile(design.sheet);
    const QPainterPath plain = sheet.subtracted(beyond(design.fold));
    const QPainterPath bare = sheet.intersected(beyond(design.fold));
    const QPainterPath flap = mirroredAt(design.fold).map(bare);
    const double half = design.fold / 2;
    const QRectF bounds = flap.boundingRect();

    if (design.depth)
        shade.below(plate, {0, 12}, 26, QColor(0, 0, 0, 110));
    drawPlate(painter, plate);
    if (design.depth)
        drawRim(painter, plate, 4, 90);

    painter.setClipPath(plate);
    if (design.depth)
        shade.below(sheet, {0, 22}, 40, QColor(10, 4, 40, 170));
    painter.fillPath(sheet, along({half - 150, half + 250}, {half + 250, half - 150},
                                  {{0, QColor(255, 196, 70)},
                                   {0.34, QColor(255, 112, 84)},
                                   {0.66, QColor(238, 60, 146)},
                                   {1, QColor(134, 78, 246)}}));
    painter.setClipPath(bare);
    if (design.depth)
        shade.below(plain.united(flap), {6, 6}, 34, QColor(70, 0, 60, 150));

    painter.setClipPath(plate);
    painter.fillPath(plain, along({280, 250}, {600, 620}, {{0, Qt::white}, {1, QColor(214, 216, 238)}}));
    if (design.depth)
        drawRim(painter, plain, 3, 255);

    painter.setClipPath(plain);
    if (design.depth)
        shade.below(flap, {-12, -10}, 30, QColor(36, 24, 96, 150));
    painter.setClipPath(plate);
    const QPointF tip = bounds.topLeft() + QPointF(30, 30);
    painter.fillPath(flap, design.depth ? along(tip, {half, half},
                                                {{0, QColor(244, 245, 252)},
                                                 {0.45, QColor(205, 207, 230)},
                                                 {0.72, QColor(255, 255, 255)},
                                                 {0.9, QColor(226, 228, 244)},
                                                 {1, QColor(176, 178, 214)}})
                                        : along(tip, {half, half},
                                                {{0, QColor(186, 188, 222)}, {1, QColor(232, 233, 246)}}));
    return image;
}

} // namespace tavrik::practice
