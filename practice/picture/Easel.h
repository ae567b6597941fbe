#pragma once

#include "practice/picture/IconSource.h"
#include "practice/picture/LaunchpadLayout.h"
#include "practice/picture/Look.h"
#include "practice/picture/PictureMap.h"

#include <QPainter>

#include <string>

namespace tavrik::practice {

/// What every part of the picture draws with. Positions and sizes are points; the painter is scaled already.
class Easel {
public:
    Easel(QPainter& painter, const Look& look, IconSource& icons, PictureMap& map, double scale);

    /// How many pixels so many points are.
    int pixels(double points) const;

    /// An icon, pixel for pixel; its place is noted.
    void drawIcon(const QPointF& corner, const QImage& icon);
    void note(Spot spot, const QPointF& corner, double size);

    /// One line about the middle of a space, cut short when it is too long.
    void drawTitle(const QRectF& space, const std::string& text, const QFont& font);
    void drawText(const QPointF& baseline, const QString& text, const QFont& font, const QColor& colour);

    /// A translucent sheet with round corners, a light edge and a soft shadow.
    void drawPanel(const QRectF& bounds, double corner);

    /// An application with its title below, in a cell of this width.
    void drawApp(const QPointF& cell, double width, const LaunchpadApp& app, const std::string& where);
    /// A closed folder: its first applications, small, on a rounded tile.
    void drawFolder(const QPointF& cell, double width, const LaunchpadFolder& folder, const std::string& where);

    QPainter& painter() { return m_painter; }

    const Look& look() const { return m_look; }

    IconSource& icons() { return m_icons; }

    static constexpr double kIconSize = 88; ///< in Launchpad
    static constexpr double kCellHeight = 126;

private:
    QPainter& m_painter;
    const Look& m_look;
    IconSource& m_icons;
    PictureMap& m_map;
    double m_scale;
};

} // namespace tavrik::practice
