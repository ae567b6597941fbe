#include "practice/picture/LaunchpadDrawing.h"

#include <algorithm>
#include <cmath>

namespace tavrik::practice {

namespace {

constexpr std::size_t kColumns = 7;
constexpr std::size_t kMostOnPage = 70; ///< twice what a page of the Mac holds
constexpr double kMargin = 72;          ///< on both sides of the picture
constexpr double kHeading = 52;
constexpr double kDots = 44;
constexpr double kLineOfText = 36;
constexpr double kDotSpace = 18;

double rowsHeight(std::size_t items, std::size_t columns) {
    const std::size_t rows = (items + columns - 1) / columns;
    return static_cast<double>(rows) * Easel::kCellHeight;
}

/// The corner of the cell of one item.
QPointF cellAt(std::size_t item, std::size_t columns, const QPointF& corner, double width) {
    const std::size_t row = item / columns;
    return corner +
           QPointF(static_cast<double>(item % columns) * width, static_cast<double>(row) * Easel::kCellHeight);
}

QString leftOutText(std::size_t count, const char* one, const char* several) {
    return QStringLiteral("and %1 more %2").arg(count).arg(QLatin1String(count == 1 ? one : several));
}

std::string pageName(std::size_t index) {
    return "Page " + std::to_string(index + 1);
}

} // namespace

PagesDrawing::PagesDrawing(const LaunchpadLayout& layout, double width) : m_layout(layout), m_width(width) {}

double PagesDrawing::height() const {
    double height = 0;
    for (const auto& page : m_layout.pages)
        height += kHeading + rowsHeight(std::clamp<std::size_t>(page.size(), 1, kMostOnPage), kColumns) + kDots;
    return height + (m_layout.pagesLeftOut > 0 ? kLineOfText : 0);
}

void PagesDrawing::draw(Easel& easel, double top) const {
    const double cellWidth = (m_width - 2 * kMargin) / kColumns;
    for (std::size_t index = 0; index < m_layout.pages.size(); ++index) {
        const auto& page = m_layout.pages[index];
        const std::string name = pageName(index);
        easel.drawText({kMargin + 24, top + 24}, QString::fromStdString(name), easel.look().headingFont,
                       easel.look().caption);
        top += kHeading;
        const std::size_t shown = std::min(page.size(), kMostOnPage);
        for (std::size_t item = 0; item < shown; ++item) {
            const QPointF cell = cellAt(item, kColumns, {kMargin, top}, cellWidth);
            if (const auto* app = std::get_if<LaunchpadApp>(&page[item]))
                easel.drawApp(cell, cellWidth, *app, name);
            else
                easel.drawFolder(cell, cellWidth, std::get<LaunchpadFolder>(page[item]), name);
        }
        top += rowsHeight(std::max<std::size_t>(shown, 1), kColumns);
        if (page.size() > shown) {
            easel.drawText({kMargin + 24, top + 6}, leftOutText(page.size() - shown, "item", "items"),
                           easel.look().captionFont, easel.look().caption);
        }
        drawDots(easel, top + 4, index);
        top += kDots;
    }
    if (m_layout.pagesLeftOut > 0) {
        easel.drawText({kMargin + 24, top + 14}, leftOutText(m_layout.pagesLeftOut, "page", "pages"),
                       easel.look().captionFont, easel.look().caption);
    }
}

void PagesDrawing::drawDots(Easel& easel, double y, std::size_t current) const {
    const std::size_t count = m_layout.pages.size();
    double x = (m_width - static_cast<double>(count - 1) * kDotSpace) / 2;
    easel.painter().setPen(Qt::NoPen);
    for (std::size_t dot = 0; dot < count; ++dot, x += kDotSpace) {
        easel.painter().setBrush(dot == current ? easel.look().title : easel.look().faint);
        easel.painter().drawEllipse(QPointF(x, y), 3.5, 3.5);
    }
}

namespace {

constexpr double kFolderCell = 138;
constexpr double kFolderPadding = 24;
constexpr double kHeadingOverlap = 12; ///< a sheet stands closer to its heading than a page
constexpr double kBelowTitles = 16;    ///< what a row leaves free below its titles
constexpr double kPanelGap = 28;
constexpr double kBetweenFolderPages = 22;
constexpr std::size_t kMostFolderPages = 6;
constexpr std::size_t kFewestColumns = 2;

std::size_t columnsOf(const LaunchpadFolder& folder) {
    std::size_t columns = kFewestColumns;
    for (const auto& page : folder.pages)
        columns = std::max(columns, std::min(page.size(), kColumns));
    return columns;
}

std::size_t shownPages(const LaunchpadFolder& folder) {
    return std::min(folder.pages.size(), kMostFolderPages);
}

QSizeF sizeOf(const LaunchpadFolder& folder) {
    const std::size_t columns = columnsOf(folder);
    double height = kHeading - kHeadingOverlap + 2 * kFolderPadding - kBelowTitles;
    for (std::size_t page = 0; page < shownPages(folder); ++page) {
        const std::size_t items = std::clamp<std::size_t>(folder.pages[page].size(), 1, kMostOnPage);
        height += rowsHeight(items, columns) + (page > 0 ? kBetweenFolderPages : 0);
    }
    return {static_cast<double>(columns) * kFolderCell + 2 * kFolderPadding, height};
}

} // namespace

FoldersDrawing::FoldersDrawing(const LaunchpadLayout& layout, double width, std::size_t mostFolders) {
    double x = kMargin;
    double y = 0;
    for (std::size_t page = 0; page < layout.pages.size(); ++page) {
        for (std::size_t place = 0; place < layout.pages[page].size(); ++place) {
            const auto* folder = std::get_if<LaunchpadFolder>(&layout.pages[page][place]);
            if (!folder)
                continue;
            if (m_panels.size() == mostFolders) {
                ++m_leftOut;
                continue;
            }
            const QSizeF size = sizeOf(*folder);
            if (x > kMargin && x + size.width() > width - kMargin) {
                x = kMargin;
                y = m_height;
            }
            m_panels.push_back({folder, page + 1, place + 1, QRectF(QPointF(x, y), size)});
            x += size.width() + kPanelGap;
            m_height = std::max(m_height, y + size.height() + kPanelGap);
        }
    }
    if (m_leftOut > 0)
        m_height += kLineOfText;
}

void FoldersDrawing::draw(Easel& easel, double top) const {
    for (const Panel& panel : m_panels)
        drawPanel(easel, panel, top);
    if (m_leftOut > 0) {
        easel.drawText({kMargin + 24, top + m_height - kLineOfText + 14},
                       leftOutText(m_leftOut, "folder", "folders"), easel.look().captionFont,
                       easel.look().caption);
    }
}

void FoldersDrawing::drawPanel(Easel& easel, const Panel& panel, double top) const {
    const LaunchpadFolder& folder = *panel.folder;
    const Look& look = easel.look();
    const std::string name = folder.title.empty() ? "Folder without a title" : "Folder: " + folder.title;
    const QRectF bounds = panel.bounds.translated(0, top);
    double x = bounds.left() + 24;
    const auto write = [&](const QString& text, const QFont& font, const QColor& colour) {
        easel.drawText({x, bounds.top() + 24}, text, font, colour);
        x += QFontMetricsF(font).horizontalAdvance(text);
    };
    // The name alone in the family of its style, which has other weights than the heading's.
    const QString title = QString::fromStdString(folder.title);
    write(title.isEmpty() ? QStringLiteral("Folder without a title") : QStringLiteral("Folder: "),
          look.headingFont, look.title);
    write(title, Look::fontFor(title, look.headingFont), look.title);
    x += 10;
    write(QStringLiteral("page %1, place %2").arg(panel.page).arg(panel.place), look.captionFont, look.caption);
    easel.drawPanel(bounds.adjusted(0, kHeading - kHeadingOverlap, 0, 0), 26);

    const std::size_t columns = columnsOf(folder);
    double y = bounds.top() + kHeading - kHeadingOverlap + kFolderPadding;
    for (std::size_t page = 0; page < shownPages(folder); ++page) {
        const auto& apps = folder.pages[page];
        if (page > 0) {
            easel.painter().setPen(QPen(look.faint, 1));
            const double middle = std::floor(y + kBetweenFolderPages / 2 - kBelowTitles / 2) + 0.5;
            easel.painter().drawLine(QPointF(bounds.left() + kFolderPadding, middle),
                                     QPointF(bounds.right() - kFolderPadding, middle));
            y += kBetweenFolderPages;
        }
        const std::size_t shown = std::min(apps.size(), kMostOnPage);
        for (std::size_t item = 0; item < shown; ++item) {
            easel.drawApp(cellAt(item, columns, {bounds.left() + kFolderPadding, y}, kFolderCell), kFolderCell,
                          apps[item], name);
        }
        y += rowsHeight(std::max<std::size_t>(shown, 1), columns);
    }
}

} // namespace tavrik::practice
