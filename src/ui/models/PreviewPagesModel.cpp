#include "ui/models/PreviewPagesModel.h"

#include <cstddef>

namespace tavrik {

int PreviewPagesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PreviewPagesModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case items:
        return QVariant::fromValue(m_pages.at(static_cast<std::size_t>(index.row())).get());
    case changeCount:
        return changesOn(index.row());
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviewPagesModel::roleNames() const {
    return {{items, "items"}, {changeCount, "changeCount"}};
}

void PreviewPagesModel::show(const std::vector<std::vector<PreviewItem>>& pages) {
    if (m_pages.size() > pages.size()) {
        beginRemoveRows({}, static_cast<int>(pages.size()), count() - 1);
        m_pages.resize(pages.size());
        endRemoveRows();
    }
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i]->show(pages[i]);
    if (m_pages.size() < pages.size()) {
        beginInsertRows({}, count(), static_cast<int>(pages.size()) - 1);
        while (m_pages.size() < pages.size()) {
            m_pages.push_back(std::make_unique<PreviewItemsModel>(m_images));
            m_pages.back()->show(pages[m_pages.size() - 1]);
        }
        endInsertRows();
    }
    if (!m_pages.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {changeCount});
    Q_EMIT changed();
}

void PreviewPagesModel::renewIcons() {
    for (const auto& page : m_pages)
        page->renewIcons();
}

int PreviewPagesModel::changesOn(int page) const {
    int count = 0;
    if (page >= 0 && page < this->count()) {
        for (const PreviewItem& item : m_pages[static_cast<std::size_t>(page)]->items())
            count += item.changeCount();
    }
    return count;
}

} // namespace tavrik
