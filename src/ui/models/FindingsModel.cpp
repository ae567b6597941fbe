#include "ui/models/FindingsModel.h"

#include <utility>

namespace tavrik {

int FindingsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case group:
        return row.group;
    case sentence:
        return row.sentence;
    case advice:
        return row.advice;
    case condition:
        return QVariant::fromValue(row.condition);
    default:
        return {};
    }
}

QHash<int, QByteArray> FindingsModel::roleNames() const {
    return {{group, "group"}, {sentence, "sentence"}, {advice, "advice"}, {condition, "condition"}};
}

void FindingsModel::show(std::vector<Row> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    Q_EMIT countChanged();
}

} // namespace tavrik
