#include "ui/models/ThemesModel.h"

#include "changes/PendingChangesManager.h"
#include "ui/models/Text.h"
#include "ui/models/ThemeShelf.h"

#include <algorithm>

namespace tavrik {

namespace {

constexpr std::size_t kPreviewIcons = 12;

std::vector<MacPath> previewOf(std::vector<ThemeIconRow> rows) {
    std::erase_if(rows, [](const ThemeIconRow& row) { return row.icon.empty() || row.isToBeRemoved; });
    std::ranges::stable_sort(rows, {}, [](const ThemeIconRow& row) { return row.state; });
    std::vector<MacPath> icons;
    for (const ThemeIconRow& row : rows) {
        if (icons.size() < kPreviewIcons)
            icons.push_back(row.icon);
    }
    return icons;
}

QStringList pathsOf(const std::vector<MacPath>& icons) {
    QStringList paths;
    for (const MacPath& icon : icons)
        paths.append(toQString(icon.string()));
    return paths;
}

} // namespace

ThemesModel::ThemesModel(const ThemeShelf& shelf, const PendingChangesManager& changes)
    : m_shelf(shelf),
      m_changes(changes) {}

QVariant ThemesModel::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const ThemeCard& card = rows()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case ThemeIDRole:
        return toQString(card.themeID);
    case NameRole:
        return toQString(card.name);
    case PreviewRole:
        return pathsOf(card.preview);
    case CoverageRole:
        return card.iconCount == 0
                   ? tr("No icons yet")
                   : tr("Covers %1 of %2 apps").arg(card.reach.covered).arg(card.reach.restylable);
    case CanApplyRole:
        return card.reach.covered > 0 && !card.isToBeRemoved;
    case IsToBeRemovedRole:
        return card.isToBeRemoved;
    default:
        return {};
    }
}

QHash<int, QByteArray> ThemesModel::roleNames() const {
    return {{ThemeIDRole, "themeID"},   {NameRole, "name"},         {PreviewRole, "preview"},
            {CoverageRole, "coverage"}, {CanApplyRole, "canApply"}, {IsToBeRemovedRole, "isToBeRemoved"}};
}

void ThemesModel::update() {
    std::vector<ThemeCard> cards;
    for (const ThemeFacts& facts : m_shelf.reading().themes) {
        const std::vector<ThemeIconRow> icons = m_shelf.rowsOf(facts);
        cards.push_back(
            {.themeID = facts.theme.themeID,
             .name = facts.theme.name,
             .preview = previewOf(icons),
             .iconCount = static_cast<int>(facts.icons.size()),
             .reach = reachOf(icons),
             .isToBeRemoved = m_changes.staged().pendingThemeDeletions.contains(facts.theme.themeID)});
    }
    const int before = rowCount();
    setRows(cards);
    if (rowCount() != before)
        Q_EMIT countChanged();
}

} // namespace tavrik
