#pragma once

#include "icons/list/ApplicationsTable.h"

#include <QAbstractListModel>

#include <vector>

namespace tavrik {

/// The rows of a list for its view. A row is the same as long as its bundle identifier is: changes come as the
/// removals, insertions, moves and changed roles that they are, never as a reset. Main thread.
class ApplicationsModel : public QAbstractListModel, public ApplicationsTable {
public:
    enum Role {
        bundleID = Qt::UserRole + 1,
        title,   ///< as Launchpad shows it
        name,    ///< without styled letters
        path,    ///< of the application, a path of the Mac
        refusal, ///< why it cannot be restyled; empty when it can
        isInDock,
        isThemed,
        displayIcons,      ///< paths of the Mac, in display order
        themeIcons,        ///< likewise; they follow the display icons
        pendingCount,      ///< how many of the display icons, at their end, are not applied yet
        selectedIconIndex, ///< among both; -1 = the application's own
    };

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void show(const std::vector<ApplicationRow>& rows) override;

    const std::vector<ApplicationRow>& rows() const { return m_rows; }

    /// -1 when it is not shown.
    int rowOf(const std::string& bundleID) const;

private:
    std::vector<ApplicationRow> m_rows;
};

} // namespace tavrik
