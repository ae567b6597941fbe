#include "ui/models/IconStrip.h"

#include <algorithm>

namespace tavrik {

int IconStrip::selectedTile() const {
    // The tile that adds stands between the icons of the application and those of themes.
    return m_selectedIconIndex + (m_selectedIconIndex < m_displayIcons.size() ? 1 : 2);
}

void IconStrip::setDisplayIcons(const QStringList& icons) {
    if (icons == m_displayIcons)
        return;
    m_displayIcons = icons;
    layOut();
}

void IconStrip::setThemeIcons(const QStringList& icons) {
    if (icons == m_themeIcons)
        return;
    m_themeIcons = icons;
    layOut();
}

void IconStrip::setPendingCount(int count) {
    if (count == m_pendingCount)
        return;
    m_pendingCount = count;
    tell();
}

void IconStrip::setSelectedIconIndex(int index) {
    if (index == m_selectedIconIndex)
        return;
    m_selectedIconIndex = index;
    tell();
}

int IconStrip::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

int IconStrip::placeOf(int row) const {
    return m_tiles[static_cast<std::size_t>(row)].kind == Theme ? row - 2 : row - 1;
}

QVariant IconStrip::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Tile& shown = m_tiles[static_cast<std::size_t>(index.row())];
    const int at = placeOf(index.row());
    switch (role) {
    case kind:
        return shown.kind;
    case path:
        return shown.path;
    case place:
        return at;
    case isChosen:
        return shown.kind != Add && at == m_selectedIconIndex;
    case isPending:
        return shown.kind == Custom && at >= m_displayIcons.size() - m_pendingCount;
    case beginsThemes:
        return shown.kind == Theme && at == m_displayIcons.size();
    default:
        return {};
    }
}

QHash<int, QByteArray> IconStrip::roleNames() const {
    return {{kind, "kind"},         {path, "path"},           {place, "place"},
            {isChosen, "isChosen"}, {isPending, "isPending"}, {beginsThemes, "beginsThemes"}};
}

QVariant IconStrip::tile(int at, const QString& role) const {
    return data(index(at), roleNames().key(role.toUtf8(), -1));
}

/// Only the tiles between those that stay at the beginning and at the end change: they take other icons as far
/// as there are as many, and the rest comes or goes.
void IconStrip::layOut() {
    std::vector<Tile> tiles{{Own, {}}};
    for (const QString& icon : m_displayIcons)
        tiles.push_back({Custom, icon});
    tiles.push_back({Add, {}});
    for (const QString& icon : m_themeIcons)
        tiles.push_back({Theme, icon});

    const auto first = std::ranges::mismatch(m_tiles, tiles).in1 - m_tiles.begin();
    auto oldEnd = static_cast<std::ptrdiff_t>(m_tiles.size());
    auto newEnd = static_cast<std::ptrdiff_t>(tiles.size());
    while (oldEnd > first && newEnd > first &&
           m_tiles[static_cast<std::size_t>(oldEnd - 1)] == tiles[static_cast<std::size_t>(newEnd - 1)]) {
        --oldEnd;
        --newEnd;
    }
    const auto both = std::min(oldEnd, newEnd);
    std::copy(tiles.begin() + first, tiles.begin() + both, m_tiles.begin() + first);
    if (oldEnd > both) {
        beginRemoveRows({}, static_cast<int>(both), static_cast<int>(oldEnd) - 1);
        m_tiles.erase(m_tiles.begin() + both, m_tiles.begin() + oldEnd);
        endRemoveRows();
    } else if (newEnd > both) {
        beginInsertRows({}, static_cast<int>(both), static_cast<int>(newEnd) - 1);
        m_tiles.insert(m_tiles.begin() + both, tiles.begin() + both, tiles.begin() + newEnd);
        endInsertRows();
    }
    tell();
}

void IconStrip::tell() {
    Q_EMIT dataChanged(index(0), index(count() - 1));
    Q_EMIT changed();
}

} // namespace tavrik
