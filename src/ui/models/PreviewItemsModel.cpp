#include "ui/models/PreviewItemsModel.h"

#include "ui/models/Images.h"
#include "ui/models/Text.h"

#include <algorithm>
#include <cstddef>

namespace tavrik {

namespace {

constexpr std::size_t kMiniatures = 9; ///< on a closed folder

QString drawing(const char* name) {
    return QStringLiteral("qrc:/qt/qml/Tavrik/qml/preview/%1.svg").arg(QLatin1String(name));
}

} // namespace

int PreviewItemsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PreviewItemsModel::data(const QModelIndex& index, int role) const {
    const PreviewItem& item = m_items.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case key:
        return toQString(item.key);
    case isFolder:
        return item.kind == PreviewItem::Kind::folder;
    case isGap:
        return item.kind == PreviewItem::Kind::gap;
    case isLine:
        return item.kind == PreviewItem::Kind::line;
    case changesIcon:
        return item.changesIcon();
    case titleNow:
        return toQString(item.now.title);
    case titleAfter:
        return toQString(item.after.title);
    case iconNow:
        return address(item.now.icon);
    case iconAfter:
        return address(item.after.icon);
    case membersNow:
        return addresses(item, &PreviewItem::now);
    case membersAfter:
        return addresses(item, &PreviewItem::after);
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviewItemsModel::roleNames() const {
    return {{key, "key"},
            {isFolder, "isFolder"},
            {isGap, "isGap"},
            {isLine, "isLine"},
            {changesIcon, "changesIcon"},
            {titleNow, "titleNow"},
            {titleAfter, "titleAfter"},
            {iconNow, "iconNow"},
            {iconAfter, "iconAfter"},
            {membersNow, "membersNow"},
            {membersAfter, "membersAfter"}};
}

void PreviewItemsModel::show(const std::vector<PreviewItem>& items) {
    std::size_t same = 0;
    while (same < items.size() && same < m_items.size() && items[same].key == m_items[same].key &&
           items[same].kind == m_items[same].kind)
        ++same;
    for (std::size_t i = 0; i < same; ++i) {
        if (items[i] == m_items[i])
            continue;
        m_items[i] = items[i];
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    const auto at = static_cast<std::ptrdiff_t>(same);
    const auto before = m_items.size();
    if (same < m_items.size()) {
        beginRemoveRows({}, static_cast<int>(same), count() - 1);
        m_items.erase(m_items.begin() + at, m_items.end());
        endRemoveRows();
    }
    if (same < items.size()) {
        beginInsertRows({}, static_cast<int>(same), static_cast<int>(items.size()) - 1);
        m_items.insert(m_items.end(), items.begin() + at, items.end());
        endInsertRows();
    }
    if (m_items.size() != before)
        Q_EMIT countChanged();
}

void PreviewItemsModel::renewIcons() {
    if (!m_items.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {iconNow, iconAfter, membersNow, membersAfter});
}

QString PreviewItemsModel::address(const PreviewIcon& icon) const {
    switch (icon.kind) {
    case PreviewIcon::Kind::none:
        return {};
    case PreviewIcon::Kind::shown:
        return m_images.ofShown(toQString(icon.path.string()), m_images.revision());
    case PreviewIcon::Kind::file:
        return m_images.ofFile(toQString(icon.path.string()), m_images.revision());
    case PreviewIcon::Kind::finder:
        return drawing("finder");
    case PreviewIcon::Kind::trash:
        return drawing("trash");
    case PreviewIcon::Kind::fullTrash:
        return drawing("trash-full");
    }
    return {};
}

QStringList PreviewItemsModel::addresses(const PreviewItem& item, PreviewFace PreviewItem::* face) const {
    QStringList list;
    for (std::size_t i = 0; i < std::min(item.members.size(), kMiniatures); ++i)
        list.append(address((item.members[i].*face).icon));
    return list;
}

} // namespace tavrik
