#include "practice/art/IconArtist.h"

#include "practice/art/Glyph.h"
#include "practice/art/OutlinePath.h"
#include "practice/art/Palette.h"
#include "practice/art/SoftShadow.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace tavrik::practice {
namespace {

constexpr int kSmallestSize = 16;
constexpr int kLargestSize = 1024;
constexpr int kSmallestShadow = 32; ///< pixels; a smaller icon is clearer without

QImage emptyCanvas(int size) {
    QImage canvas(size, size, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    return canvas;
}

/// Lays a layer on the canvas with its shadow below it. Distances are shares of the size.
void layDown(QPainter& painter, const QImage& layer, const QColor& shadow, double blur, double drop) {
    const int size = layer.width();
    if (size >= kSmallestShadow)
        drawSoftShadow(painter, QRectF(0, drop * size, size, size), layer, blur * size, shadow);
    painter.drawImage(0, 0, layer);
}

QImage plateLayer(const IconStyle& style, const QPainterPath& outline, int size) {
    QImage layer = emptyCanvas(size);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = outline.boundingRect();

    QLinearGradient body(bounds.topLeft(), bounds.bottomLeft());
    body.setColorAt(0, style.top);
    body.setColorAt(1, style.bottom);
    painter.fillPath(outline, body);

    QRadialGradient sheen(QPointF(bounds.center().x(), bounds.top() - 0.15 * size), 0.85 * size);
    sheen.setColorAt(0, QColor(255, 255, 255, 62));
    sheen.setColorAt(1, QColor(255, 255, 255, 0));
    painter.fillPath(outline, sheen);

    QLinearGradient rim(bounds.topLeft(), bounds.bottomLeft());
    rim.setColorAt(0, QColor(255, 255, 255, 150));
    rim.setColorAt(0.35, QColor(255, 255, 255, 40));
    rim.setColorAt(0.75, QColor(0, 0, 0, 8));
    rim.setColorAt(1, QColor(0, 0, 0, 46));
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.strokePath(outline, QPen(rim, std::max(1.0, size * 0.010)));
    return layer;
}

/// The share of a plate's canvas that the glyph's own canvas takes.
double glyphShare(Outline outline) {
    switch (outline) {
    case Outline::squircle:
        return 0.54;
    case Outline::round:
        return 0.50;
    case Outline::square:
        return 0.66;
    case Outline::free:
        return 0.90;
    }
    return 0;
}

QImage glyphLayer(const Glyph& glyph, const Palette& palette, double share, int size) {
    QImage layer = emptyCanvas(size);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size / 2.0, size / 2.0);
    painter.scale(share * size / 100, share * size / 100);
    painter.translate(-50, -50);
    drawGlyph(painter, glyph, palette);
    return layer;
}

/// The share of the pixels that are opaque.
double coveredShare(const QImage& layer) {
    int covered = 0;
    for (int y = 0; y < layer.height(); ++y) {
        for (int x = 0; x < layer.width(); ++x)
            covered += qAlpha(layer.pixel(x, y)) > 128 ? 1 : 0;
    }
    return static_cast<double>(covered) / (layer.width() * layer.height());
}

/// Without a plate a boxy glyph looks larger than a slender one: it is drawn smaller, so that none outweighs
/// the plates around it.
double freeGlyphShare(const Glyph& glyph, const Palette& palette) {
    constexpr int kSampleSize = 64;
    constexpr double kMostCovered = 0.48;
    const double share = glyphShare(Outline::free);
    const double covered = coveredShare(glyphLayer(glyph, palette, share, kSampleSize));
    return covered > kMostCovered ? share * std::sqrt(kMostCovered / covered) : share;
}

} // namespace

const std::vector<std::string>& glyphNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const Glyph& glyph : allGlyphs())
            list.emplace_back(glyph.name);
        return list;
    }();
    return names;
}

QImage drawIcon(const IconStyle& style, int size) {
    size = std::clamp(size, kSmallestSize, kLargestSize);
    QImage icon = emptyCanvas(size);
    QPainter painter(&icon);
    const QPainterPath outline = outlinePath(style.outline, size);
    const bool hasPlate = !outline.isEmpty();
    if (hasPlate)
        layDown(painter, plateLayer(style, outline, size), QColor(0, 0, 0, 96), 0.022, 0.012);
    if (const Glyph* glyph = findGlyph(style.glyph)) {
        const Palette palette = hasPlate ? Palette::onPlate(style.top, style.bottom)
                                         : Palette::withoutPlate(style.top, style.bottom);
        const double share = hasPlate ? glyphShare(style.outline) : freeGlyphShare(*glyph, palette);
        layDown(painter, glyphLayer(*glyph, palette, share, size), palette.shadow(), 0.014, 0.010);
    }
    return icon;
}

QImage drawGenericIcon(int size) {
    return drawIcon({Outline::free, QColor(0xF4, 0xF6, 0xF9), QColor(0xD5, 0xDA, 0xE2), "application-sheet"},
                    size);
}

} // namespace tavrik::practice
