#include "ui/models/ApplicationRows.h"

#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "fonts/FontReplacer.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"

#include <algorithm>
#include <iterator>

namespace tavrik {

ApplicationRows::ApplicationRows(ApplicationsModel& rows, const UiServices& with) : m_rows(rows), m_with(with) {
    setSourceModel(&rows);
    connect(&rows, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) {
                Q_EMIT dataChanged(mapFromSource(first), mapFromSource(last),
                                   {shownIcon, styledTitle, caption});
            });
    NotificationCenter& notifications = with.managers.notificationCenter;
    m_observations.push_back(
        notifications.observe(std::string(kPendingChangesUpdated), [this] { stagedChanged(); }));
    m_observations.push_back(
        notifications.observe(std::string(kFilterSettingsUpdated), [this] { searchChanged(); }));
}

QVariant ApplicationRows::data(const QModelIndex& index, int role) const {
    switch (role) {
    case shownIcon:
        return shownIconAt(index);
    case styledTitle: {
        const QVariant title = index.data(ApplicationsModel::title);
        return title == index.data(ApplicationsModel::name) ? QString() : title;
    }
    case caption:
        return captionAt(index);
    case isStaged:
        return isStagedAt(index);
    case ApplicationsModel::refusal:
        return inTheirLanguage(QIdentityProxyModel::data(index, role).toString().toStdString());
    default:
        return QIdentityProxyModel::data(index, role);
    }
}

QHash<int, QByteArray> ApplicationRows::roleNames() const {
    QHash<int, QByteArray> names = QIdentityProxyModel::roleNames();
    names.insert(
        {{shownIcon, "shownIcon"}, {styledTitle, "styledTitle"}, {caption, "caption"}, {isStaged, "isStaged"}});
    return names;
}

bool ApplicationRows::isStagedAt(const QModelIndex& index) const {
    return m_staged.contains(index.data(ApplicationsModel::bundleID).toString().toStdString());
}

QString ApplicationRows::shownIconAt(const QModelIndex& index) const {
    const QStringList icons = index.data(ApplicationsModel::displayIcons).toStringList() +
                              index.data(ApplicationsModel::themeIcons).toStringList();
    return icons.value(index.data(ApplicationsModel::selectedIconIndex).toInt());
}

QString ApplicationRows::captionAt(const QModelIndex& index) const {
    QStringList parts;
    if (!index.data(ApplicationsModel::refusal).toString().isEmpty())
        parts.append(tr("Cannot be restyled"));
    else if (isStagedAt(index))
        parts.append(tr("Not applied yet"));
    else if (index.data(ApplicationsModel::isThemed).toBool())
        parts.append(tr("Custom icon"));
    if (index.data(ApplicationsModel::isInDock).toBool())
        parts.append(tr("In the Dock"));
    if (isFoundByIdentifierAlone(index))
        parts.append(index.data(ApplicationsModel::bundleID).toString());
    return parts.join(tr(" · ", "between two remarks on an application"));
}

/// Nothing else in the row would tell why it is there.
bool ApplicationRows::isFoundByIdentifierAlone(const QModelIndex& index) const {
    const std::string name = index.data(ApplicationsModel::name).toString().toStdString();
    return !m_foldedSearch.empty() &&
           m_with.managers.fonts.fontReplacer().folded(name).find(m_foldedSearch) == std::string::npos;
}

void ApplicationRows::stagedChanged() {
    std::set<std::string> staged;
    for (const auto& [bundleID, change] : m_with.managers.pendingChanges.staged().pendingChanges)
        staged.insert(bundleID);
    std::vector<std::string> others;
    std::ranges::set_symmetric_difference(m_staged, staged, std::back_inserter(others));
    m_staged = std::move(staged);
    for (const std::string& bundleID : others) {
        if (const int at = m_rows.rowOf(bundleID); at >= 0)
            Q_EMIT dataChanged(index(at, 0), index(at, 0), {caption, isStaged});
    }
}

void ApplicationRows::searchChanged() {
    const QString typed = toQString(m_with.coordinators.filters.filter().searchText).trimmed();
    std::string folded = m_with.managers.fonts.fontReplacer().folded(typed.toStdString());
    if (folded == m_foldedSearch)
        return;
    m_foldedSearch = std::move(folded);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {caption});
}

} // namespace tavrik
