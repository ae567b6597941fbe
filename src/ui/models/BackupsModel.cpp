#include "ui/models/BackupsModel.h"

#include "ui/models/Text.h"

#include <algorithm>

namespace tavrik {

int BackupsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant BackupsModel::data(const QModelIndex& index, int role) const {
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case key:
        return toQString(row.id);
    case title:
        return row.title;
    case remark:
        return row.remark;
    case group:
        return row.group;
    case isOriginal:
        return row.isOriginal;
    default:
        return {};
    }
}

QHash<int, QByteArray> BackupsModel::roleNames() const {
    return {{key, "key"}, {title, "title"}, {remark, "remark"}, {group, "group"}, {isOriginal, "isOriginal"}};
}

int BackupsModel::rowOf(const std::string& id) const {
    const auto row = std::ranges::find(m_rows, id, &Row::id);
    return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

void BackupsModel::show(const std::vector<Row>& rows) {
    for (int i = rowCount() - 1; i >= 0; --i) {
        const auto at = m_rows.begin() + i;
        if (std::ranges::find(rows, at->id, &Row::id) != rows.end())
            continue;
        beginRemoveRows({}, i, i);
        m_rows.erase(at);
        endRemoveRows();
    }
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const Row& row = rows[static_cast<std::size_t>(i)];
        const int from = rowOf(row.id);
        if (from < 0) {
            beginInsertRows({}, i, i);
            m_rows.insert(m_rows.begin() + i, row);
            endInsertRows();
            continue;
        }
        if (from != i) {
            beginMoveRows({}, from, from, {}, i);
            std::rotate(m_rows.begin() + i, m_rows.begin() + from, m_rows.begin() + from + 1);
            endMoveRows();
        }
        if (m_rows[static_cast<std::size_t>(i)] != row) {
            m_rows[static_cast<std::size_t>(i)] = row;
            Q_EMIT dataChanged(index(i), index(i));
        }
    }
}

} // namespace tavrik
