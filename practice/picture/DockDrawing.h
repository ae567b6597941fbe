#pragma once

#include "practice/picture/DockLayout.h"
#include "practice/picture/Easel.h"

#include <vector>

namespace tavrik::practice {

/// The Dock on the picture: one bar with every tile, the trash last, and below it the names, on two or three
/// lines in turn when the tiles stand close. Measured before it is drawn. Points.
class DockDrawing {
public:
    DockDrawing(const DockLayout& layout, double width);

    double height() const;
    void draw(Easel& easel, double top) const;

private:
    struct Slot {
        enum class Kind { tile, gap, line, trash };
        Kind kind = Kind::tile;
        const DockTile* tile = nullptr;
        double share = 1; ///< of a tile's width
    };

    void addLine();
    void addSection(const std::vector<DockTile>& tiles);
    void drawLabel(Easel& easel, const std::string& text, double middle, double bottom, std::size_t turn) const;

    std::vector<Slot> m_slots;
    double m_width;
    double m_pitch = 0; ///< from one tile to the next
    std::size_t m_labelLines = 1;
};

} // namespace tavrik::practice
