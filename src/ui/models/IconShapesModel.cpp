#include "ui/models/IconShapesModel.h"

#include <algorithm>

namespace tavrik {

int IconShapesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant IconShapesModel::data(const QModelIndex& index, int role) const {
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case app:
        return row.app;
    case number:
        return row.number + 1;
    case path:
        return row.path;
    case isChosen:
        return row.isChosen;
    case isCut:
        return row.isCut;
    default:
        return {};
    }
}

QHash<int, QByteArray> IconShapesModel::roleNames() const {
    return {{app, "app"}, {number, "number"}, {path, "path"}, {isChosen, "isChosen"}, {isCut, "isCut"}};
}

void IconShapesModel::show(const std::vector<Row>& rows) {
    const auto isSame = [](const Row& one, const Row& other) {
        return one.bundleID == other.bundleID && one.number == other.number;
    };
    const auto [end, newEnd] = std::ranges::mismatch(m_rows, rows, isSame);
    const auto kept = static_cast<int>(end - m_rows.begin());
    if (kept < count()) {
        beginRemoveRows({}, kept, count() - 1);
        m_rows.erase(m_rows.begin() + kept, m_rows.end());
        endRemoveRows();
    }
    for (int i = 0; i < kept; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (m_rows[at] == rows[at])
            continue;
        m_rows[at] = rows[at];
        Q_EMIT dataChanged(index(i), index(i));
    }
    if (newEnd != rows.end()) {
        beginInsertRows({}, kept, static_cast<int>(rows.size()) - 1);
        m_rows.insert(m_rows.end(), newEnd, rows.end());
        endInsertRows();
    }
    Q_EMIT countChanged();
}

void IconShapesModel::setCut(int row, bool cuts) {
    m_rows.at(static_cast<std::size_t>(row)).isCut = cuts;
    Q_EMIT dataChanged(index(row), index(row));
}

} // namespace tavrik
