#include "ui/models/FontStylesModel.h"

namespace tavrik {

int FontStylesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_styles.size());
}

QVariant FontStylesModel::data(const QModelIndex& index, int role) const {
    const Style& style = m_styles.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case name:
        return style.name;
    case sample:
        return style.sample;
    case lack:
        return style.lack;
    case lacks:
        return style.lacks;
    case isCurrent:
        return style.isCurrent;
    case isStaged:
        return style.isStaged;
    default:
        return {};
    }
}

QHash<int, QByteArray> FontStylesModel::roleNames() const {
    return {{name, "name"},   {sample, "sample"},       {lack, "lack"},
            {lacks, "lacks"}, {isCurrent, "isCurrent"}, {isStaged, "isStaged"}};
}

void FontStylesModel::show(const std::vector<Style>& styles) {
    if (styles.size() != m_styles.size()) {
        beginResetModel();
        m_styles = styles;
        endResetModel();
        return;
    }
    for (std::size_t i = 0; i < styles.size(); ++i) {
        if (styles[i] == m_styles[i])
            continue;
        m_styles[i] = styles[i];
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
}

} // namespace tavrik
