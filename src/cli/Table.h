#pragma once

#include <string>
#include <vector>

namespace tavrik {

/// A plain text table for a terminal: columns as wide as their widest cell, two blanks between them. Widths
/// count user-perceived characters.
class Table {
public:
    explicit Table(std::vector<std::string> header);

    /// As many cells as the header has.
    void add(std::vector<std::string> row);

    /// Without a line break at the end.
    std::string text() const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace tavrik
