#include "practice/picture/DockDrawing.h"

#include <algorithm>
#include <cmath>

namespace tavrik::practice {

namespace {

constexpr double kMargin = 72;
constexpr double kHeading = 48;
constexpr double kPadding = 12; ///< of the bar
constexpr double kLargestPitch = 78;
constexpr double kSmallestPitch = 20;
constexpr double kIconShare = 0.92; ///< of the pitch
constexpr double kLabelWidth = 100; ///< that most names need
constexpr double kLabelHeight = 18;
constexpr std::size_t kMostLabelLines = 3;
constexpr double kLineShare = 0.35;
constexpr double kSmallGapShare = 0.5;

} // namespace

DockDrawing::DockDrawing(const DockLayout& layout, double width) : m_width(width) {
    addSection(layout.apps);
    addSection(layout.recents);
    addSection(layout.others);
    if (layout.others.empty())
        addLine();
    m_slots.push_back({Slot::Kind::trash, nullptr, 1});

    double shares = 0;
    for (const Slot& slot : m_slots)
        shares += slot.share;
    m_pitch =
        std::clamp(std::floor((width - 2 * kMargin - 2 * kPadding) / shares), kSmallestPitch, kLargestPitch);
    while (m_labelLines < kMostLabelLines && static_cast<double>(m_labelLines) * m_pitch < kLabelWidth)
        ++m_labelLines;
}

void DockDrawing::addLine() {
    if (!m_slots.empty())
        m_slots.push_back({Slot::Kind::line, nullptr, kLineShare});
}

void DockDrawing::addSection(const std::vector<DockTile>& tiles) {
    if (!tiles.empty())
        addLine();
    for (const DockTile& tile : tiles) {
        if (tile.kind == TileKind::spacer)
            m_slots.push_back({Slot::Kind::gap, &tile, 1});
        else if (tile.kind == TileKind::smallSpacer)
            m_slots.push_back({Slot::Kind::gap, &tile, kSmallGapShare});
        else
            m_slots.push_back({Slot::Kind::tile, &tile, 1});
    }
}

double DockDrawing::height() const {
    return kHeading + m_pitch + 2 * kPadding + 10 + static_cast<double>(m_labelLines) * kLabelHeight;
}

void DockDrawing::drawLabel(Easel& easel, const std::string& text, double middle, double bottom,
                            std::size_t turn) const {
    const double width = static_cast<double>(m_labelLines) * m_pitch - 4;
    const double line = static_cast<double>(turn % m_labelLines);
    if (line > 0) {
        easel.painter().setPen(QPen(easel.look().faint, 1));
        easel.painter().drawLine(QPointF(middle, bottom + 3),
                                 QPointF(middle, bottom + 5 + line * kLabelHeight));
    }
    easel.drawTitle(QRectF(middle - width / 2, bottom + 5 + line * kLabelHeight, width, kLabelHeight), text,
                    easel.look().labelFont);
}

void DockDrawing::draw(Easel& easel, double top) const {
    double shares = 0;
    for (const Slot& slot : m_slots)
        shares += slot.share;
    const double barWidth = std::round(shares * m_pitch) + 2 * kPadding;
    const QRectF bar(std::floor((m_width - barWidth) / 2), top + kHeading, barWidth, m_pitch + 2 * kPadding);
    easel.drawText({bar.left() + 24, top + 24}, QStringLiteral("Dock"), easel.look().headingFont,
                   easel.look().caption);
    easel.drawPanel(bar, std::min(26.0, bar.height() * 0.28));

    const double iconSize = std::floor(m_pitch * kIconShare);
    double x = bar.left() + kPadding;
    std::size_t turn = 0;
    for (const Slot& slot : m_slots) {
        const double width = slot.share * m_pitch;
        const double middle = std::floor(x + width / 2);
        const QPointF corner(std::floor(middle - iconSize / 2),
                             std::floor(bar.top() + kPadding + (m_pitch - iconSize) / 2));
        const int size = easel.pixels(iconSize);
        x += width;
        switch (slot.kind) {
        case Slot::Kind::gap:
            break;
        case Slot::Kind::line:
            easel.painter().setPen(QPen(easel.look().faint, 1));
            easel.painter().drawLine(QPointF(middle + 0.5, bar.top() + 16),
                                     QPointF(middle + 0.5, bar.bottom() - 16));
            break;
        case Slot::Kind::trash:
            easel.drawIcon(corner, easel.icons().trash(size));
            drawLabel(easel, "Trash", middle, bar.bottom(), turn++);
            break;
        case Slot::Kind::tile: {
            const DockTile& tile = *slot.tile;
            easel.drawIcon(corner, tile.kind == TileKind::app      ? easel.icons().application(tile.path, size)
                                   : tile.kind == TileKind::folder ? easel.icons().folder(tile.path, size)
                                                                   : easel.icons().document(tile.path, size));
            easel.note({"Dock", tile.label, tile.bundleID, tile.path, {}}, corner, iconSize);
            drawLabel(easel, tile.label, middle, bar.bottom(), turn++);
            break;
        }
        }
    }
}

} // namespace tavrik::practice
