#include "practice/art/Glyph.h"

#include "practice/art/GlyphPath.h"
#include "practice/art/Glyphs.h"

#include <QPainterPathStroker>
#include <QTransform>

#include <algorithm>

namespace tavrik::practice {
namespace {

QPainterPath outlineOf(const Layer& layer) {
    const QPainterPath path = parseGlyphPath(layer.path).value_or(QPainterPath());
    if (layer.stroke == Stroke::fill)
        return path;
    QPainterPathStroker stroker;
    stroker.setWidth(layer.width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    QPainterPath line = stroker.createStroke(path);
    line.setFillRule(Qt::WindingFill);
    return layer.stroke == Stroke::line ? line : line.united(path);
}

std::vector<Glyph> gather() {
    std::vector<Glyph> all;
    for (auto theme : {travelGlyphs, talkGlyphs, mediaGlyphs, deskGlyphs, machineGlyphs, natureGlyphs,
                       leisureGlyphs, symbolGlyphs}) {
        for (Glyph& glyph : theme())
            all.push_back(std::move(glyph));
    }
    return all;
}

} // namespace

const std::vector<Glyph>& allGlyphs() {
    static const std::vector<Glyph> all = gather();
    return all;
}

const Glyph* findGlyph(std::string_view name) {
    const auto found = std::find_if(allGlyphs().begin(), allGlyphs().end(),
                                    [name](const Glyph& glyph) { return glyph.name == name; });
    return found == allGlyphs().end() ? nullptr : &*found;
}

void drawGlyph(QPainter& painter, const Glyph& glyph, const Palette& palette) {
    painter.save();
    painter.setPen(Qt::NoPen);
    for (const Layer& layer : glyph.layers) {
        const QPainterPath outline = outlineOf(layer);
        painter.setBrush(palette.brush(layer.tone));
        for (int copy = 0; copy < layer.copies; ++copy) {
            const auto turned =
                QTransform().translate(50, 50).rotate(360.0 * copy / layer.copies).translate(-50, -50);
            painter.drawPath(turned.map(outline));
        }
    }
    painter.restore();
}

} // namespace tavrik::practice
