#include "ui/models/ThemeIconsModel.h"

#include "ui/models/Text.h"

#include <algorithm>

namespace tavrik {

QVariant ThemeIconsModel::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const ThemeIconRow& row = rows()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case BundleIDRole:
        return toQString(row.bundleID);
    case NameRole:
        return toQString(row.appName);
    case AppPathRole:
        return toQString(row.appPath.string());
    case IconPathRole:
        return toQString(row.icon.string());
    case FileNameRole:
        return toQString(row.icon.name());
    case StateRole:
        return static_cast<int>(row.state);
    case RemarkRole:
        return remarkOn(row);
    case IsToBeHiddenRole:
        return row.isToBeHidden;
    case IsToBeRemovedRole:
        return row.isToBeRemoved;
    default:
        return {};
    }
}

QHash<int, QByteArray> ThemeIconsModel::roleNames() const {
    return {{BundleIDRole, "bundleID"},
            {NameRole, "name"},
            {AppPathRole, "appPath"},
            {IconPathRole, "iconPath"},
            {FileNameRole, "fileName"},
            {StateRole, "iconState"},
            {RemarkRole, "remark"},
            {IsToBeHiddenRole, "isToBeHidden"},
            {IsToBeRemovedRole, "isToBeRemoved"}};
}

const ThemeIconRow* ThemeIconsModel::find(const std::string& bundleID) const {
    const auto row = std::ranges::find(rows(), bundleID, &ThemeIconRow::bundleID);
    return row == rows().end() ? nullptr : &*row;
}

QString ThemeIconsModel::remarkOn(const ThemeIconRow& row) {
    if (row.isToBeRemoved)
        return tr("To be deleted");
    switch (row.state) {
    case ThemeIconState::covered:
        return {};
    case ThemeIconState::hidden:
        return row.isToBeHidden ? tr("To be hidden") : tr("Hidden");
    case ThemeIconState::lacking:
        return tr("No icon");
    case ThemeIconState::notRestylable:
        return tr("Cannot be restyled");
    case ThemeIconState::withoutApplication:
        return tr("Not installed");
    }
    return {};
}

} // namespace tavrik
