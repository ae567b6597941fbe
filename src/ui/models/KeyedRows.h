#pragma once

#include <QAbstractListModel>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tavrik {

/// Rows of a list that are told apart by a key. New rows take the place of the old ones row by row, so that a
/// view keeps its place and what has not changed is not drawn anew. A row has `std::string key() const`, unique
/// in the list, and `==`. Main thread.
template<typename Row>
class KeyedRows : public QAbstractListModel {
public:
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    const std::vector<Row>& rows() const { return m_rows; }

protected:
    /// Whether anything changed.
    bool setRows(const std::vector<Row>& rows) {
        if (rows == m_rows)
            return false;
        for (std::size_t place = m_rows.size(); place-- > 0;) {
            if (find(rows, m_rows[place].key(), 0) == rows.size())
                remove(place);
        }
        for (std::size_t place = 0; place < rows.size(); ++place) {
            const std::size_t old = find(m_rows, rows[place].key(), place);
            if (old == m_rows.size())
                insert(place, rows[place]);
            else if (old != place)
                move(old, place);
            replace(place, rows[place]);
        }
        return true;
    }

    void replace(std::size_t place, const Row& row) {
        if (m_rows[place] == row)
            return;
        m_rows[place] = row;
        const QModelIndex changed = index(static_cast<int>(place));
        Q_EMIT dataChanged(changed, changed);
    }

private:
    static std::size_t find(const std::vector<Row>& rows, const std::string& key, std::size_t from) {
        const auto begin = rows.begin() + static_cast<std::ptrdiff_t>(std::min(from, rows.size()));
        const auto found = std::find_if(begin, rows.end(), [&](const Row& row) { return row.key() == key; });
        return static_cast<std::size_t>(found - rows.begin());
    }

    void remove(std::size_t place) {
        const auto row = static_cast<int>(place);
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }

    void insert(std::size_t place, const Row& row) {
        const auto at = static_cast<int>(place);
        beginInsertRows({}, at, at);
        m_rows.insert(m_rows.begin() + at, row);
        endInsertRows();
    }

    void move(std::size_t from, std::size_t to) {
        beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {}, static_cast<int>(to));
        const auto begin = m_rows.begin();
        std::rotate(begin + static_cast<std::ptrdiff_t>(to), begin + static_cast<std::ptrdiff_t>(from),
                    begin + static_cast<std::ptrdiff_t>(from) + 1);
        endMoveRows();
    }

    std::vector<Row> m_rows;
};

} // namespace tavrik
