#pragma once

#include "practice/picture/Easel.h"
#include "practice/picture/LaunchpadLayout.h"

#include <QSizeF>

#include <vector>

/// Launchpad on the picture. Everything is measured before it is drawn, since the picture must be as tall as
/// its parts. Points.
namespace tavrik::practice {

/// The pages, one below the other, each with its heading, its grid and its dots.
class PagesDrawing {
public:
    PagesDrawing(const LaunchpadLayout& layout, double width);

    double height() const;
    void draw(Easel& easel, double top) const;

private:
    void drawDots(Easel& easel, double y, std::size_t current) const;

    const LaunchpadLayout& m_layout;
    double m_width;
};

/// The folders, opened, as many side by side as fit.
class FoldersDrawing {
public:
    FoldersDrawing(const LaunchpadLayout& layout, double width, std::size_t mostFolders);

    double height() const { return m_height; }

    void draw(Easel& easel, double top) const;

private:
    struct Panel {
        const LaunchpadFolder* folder;
        std::size_t page;  ///< from 1
        std::size_t place; ///< from 1
        QRectF bounds;     ///< of heading and sheet, from the top of all folders
    };

    void drawPanel(Easel& easel, const Panel& panel, double top) const;

    std::vector<Panel> m_panels;
    double m_height = 0;
    std::size_t m_leftOut = 0;
};

} // namespace tavrik::practice
