#include "cli/Table.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace tavrik {

namespace {

std::size_t width(const std::string& cell) {
    const QString text = QString::fromStdString(cell);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    std::size_t count = 0;
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

} // namespace

Table::Table(std::vector<std::string> header) : m_rows{std::move(header)} {}

void Table::add(std::vector<std::string> row) {
    m_rows.push_back(std::move(row));
}

std::string Table::text() const {
    std::vector<std::size_t> widths(m_rows.front().size());
    for (const auto& row : m_rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width(row[column]));
    }
    std::string text;
    for (const auto& row : m_rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column)
            line += row[column] + std::string(widths[column] - width(row[column]) + 2, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        text += (text.empty() ? "" : "\n") + line;
    }
    return text;
}

} // namespace tavrik
