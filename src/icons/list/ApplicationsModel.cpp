#include "icons/list/ApplicationsModel.h"

#include "icons/list/LongestAscent.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <utility>

namespace tavrik {

namespace {

QStringList textsOf(const std::vector<MacPath>& paths) {
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(paths.size()));
    for (const MacPath& path : paths)
        texts.push_back(QString::fromStdString(path.string()));
    return texts;
}

QList<int> changedRoles(const ApplicationRow& old, const ApplicationRow& row) {
    QList<int> roles;
    if (old == row)
        return roles;
    const auto compare = [&](const auto& one, const auto& other, std::initializer_list<int> concerned) {
        if (one != other)
            roles.append(concerned);
    };
    using Model = ApplicationsModel;
    compare(old.app.name, row.app.name, {Qt::DisplayRole, Model::title});
    compare(old.plainName, row.plainName, {Model::name});
    compare(old.app.path, row.app.path, {Model::path});
    compare(old.refusal, row.refusal, {Model::refusal});
    compare(old.isInDock, row.isInDock, {Model::isInDock});
    compare(old.isThemed(), row.isThemed(), {Model::isThemed});
    compare(old.displayPaths(), row.displayPaths(), {Model::displayIcons});
    compare(old.app.themeIcons, row.app.themeIcons, {Model::themeIcons});
    compare(old.app.pendingAdditionPaths.size(), row.app.pendingAdditionPaths.size(), {Model::pendingCount});
    compare(old.app.selectedIconIndex, row.app.selectedIconIndex, {Model::selectedIconIndex});
    return roles;
}

std::ptrdiff_t offset(std::size_t place) {
    return static_cast<std::ptrdiff_t>(place);
}

} // namespace

int ApplicationsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant ApplicationsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ApplicationRow& row = *m_shown[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case title:
        return QString::fromStdString(row.app.name);
    case bundleID:
        return QString::fromStdString(row.app.bundleID);
    case name:
        return QString::fromStdString(row.plainName);
    case path:
        return QString::fromStdString(row.app.path.string());
    case refusal:
        return QString::fromStdString(row.refusal);
    case isInDock:
        return row.isInDock;
    case isThemed:
        return row.isThemed();
    case displayIcons:
        return textsOf(row.displayPaths());
    case themeIcons:
        return textsOf(row.app.themeIcons);
    case pendingCount:
        return static_cast<int>(row.app.pendingAdditionPaths.size());
    case selectedIconIndex:
        return row.app.selectedIconIndex;
    default:
        return {};
    }
}

QHash<int, QByteArray> ApplicationsModel::roleNames() const {
    return {{bundleID, "bundleID"},
            {title, "title"},
            {name, "name"},
            {path, "path"},
            {refusal, "refusal"},
            {isInDock, "isInDock"},
            {isThemed, "isThemed"},
            {displayIcons, "displayIcons"},
            {themeIcons, "themeIcons"},
            {pendingCount, "pendingCount"},
            {selectedIconIndex, "selectedIconIndex"}};
}

int ApplicationsModel::rowOf(const std::string& identifier) const {
    const auto found = std::ranges::find(m_shown, identifier, &identifierOf);
    return found == m_shown.end() ? -1 : static_cast<int>(found - m_shown.begin());
}

void ApplicationsModel::show(const std::vector<ApplicationRow>& rows) {
    Places places;
    for (std::size_t place = 0; place < rows.size(); ++place)
        places.emplace(rows[place].app.bundleID, static_cast<int>(place));
    removeOthers(places);
    moveInto(places);
    insertMissing(rows);
    replace(rows);
}

const std::string& ApplicationsModel::identifierOf(const ApplicationRow* row) {
    return row->app.bundleID;
}

/// Neighbours at a time, from the end, so that the places before them stay.
void ApplicationsModel::removeOthers(const Places& places) {
    const auto stays = [&](std::size_t place) { return places.contains(identifierOf(m_shown[place])); };
    for (std::size_t end = m_shown.size(); end > 0;) {
        std::size_t first = end;
        while (first > 0 && !stays(first - 1))
            --first;
        if (first < end) {
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
            m_shown.erase(m_shown.begin() + offset(first), m_shown.begin() + offset(end));
            endRemoveRows();
        }
        end = first > 0 ? first - 1 : 0;
    }
}

/// Brings the rows that are left into their order by as few moves as there can be: each moved one goes right
/// behind the one that it follows.
void ApplicationsModel::moveInto(const Places& places) {
    std::vector<int> order;
    order.reserve(m_shown.size());
    for (const ApplicationRow* row : m_shown)
        order.push_back(places.at(identifierOf(row)));
    if (std::ranges::is_sorted(order))
        return;

    const std::vector<bool> stays = longestAscent(order);
    std::vector<std::pair<int, bool>> wanted;
    for (std::size_t place = 0; place < order.size(); ++place)
        wanted.emplace_back(order[place], stays[place]);
    std::ranges::sort(wanted);

    std::optional<int> previous;
    for (const auto& [value, staysInPlace] : wanted) {
        const auto from = std::ranges::find(order, value) - order.begin();
        const auto to = previous ? std::ranges::find(order, *previous) - order.begin() + 1 : 0;
        previous = value;
        if (staysInPlace || from == to)
            continue;
        beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {}, static_cast<int>(to));
        const auto move = [from, to](auto& items) {
            const auto begin = items.begin();
            if (from < to)
                std::rotate(begin + from, begin + from + 1, begin + to);
            else
                std::rotate(begin + to, begin + from, begin + from + 1);
        };
        move(m_shown);
        move(order);
        endMoveRows();
    }
}

/// Neighbours at a time. What is shown already stands in the order of `rows`.
void ApplicationsModel::insertMissing(const std::vector<ApplicationRow>& rows) {
    const auto isShownAt = [&](std::size_t shown, std::size_t place) {
        return shown < m_shown.size() && identifierOf(m_shown[shown]) == rows[place].app.bundleID;
    };
    for (std::size_t first = 0; first < rows.size(); ++first) {
        std::size_t end = first;
        while (end < rows.size() && !isShownAt(first, end))
            ++end;
        if (end == first)
            continue;
        beginInsertRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
        std::vector<const ApplicationRow*> added;
        for (std::size_t place = first; place < end; ++place)
            added.push_back(&rows[place]);
        m_shown.insert(m_shown.begin() + offset(first), added.begin(), added.end());
        endInsertRows();
        first = end; // which is shown
    }
}

/// The same rows in the same order: takes their new content, and tells what has changed of neighbours at once.
void ApplicationsModel::replace(const std::vector<ApplicationRow>& rows) {
    std::vector<QList<int>> changes;
    changes.reserve(rows.size());
    for (std::size_t place = 0; place < rows.size(); ++place)
        changes.push_back(changedRoles(*m_shown[place], rows[place]));
    m_rows = rows;
    std::ranges::transform(m_rows, m_shown.begin(), [](const ApplicationRow& row) { return &row; });

    for (std::size_t first = 0; first < changes.size();) {
        std::size_t end = first + 1;
        while (end < changes.size() && changes[end] == changes[first])
            ++end;
        if (!changes[first].empty())
            Q_EMIT dataChanged(index(static_cast<int>(first)), index(static_cast<int>(end) - 1),
                               changes[first]);
        first = end;
    }
}

} // namespace tavrik
