#pragma once

#include "icons/list/ApplicationsTable.h"

#include <QAbstractListModel>

#include <string>
#include <string_view>
#include <unordered_map>
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

    /// No two rows have the same identifier.
    void show(const std::vector<ApplicationRow>& rows) override;

    /// As they were last shown.
    const std::vector<ApplicationRow>& rows() const { return m_rows; }

    /// -1 when it is not shown.
    int rowOf(const std::string& identifier) const;

private:
    using Places = std::unordered_map<std::string_view, int>; ///< by bundle identifier

    static const std::string& identifierOf(const ApplicationRow* row);
    void removeOthers(const Places& places);
    void moveInto(const Places& places);
    void insertMissing(const std::vector<ApplicationRow>& rows);
    void replace(const std::vector<ApplicationRow>& rows);

    std::vector<ApplicationRow> m_rows;
    /// What the view sees. Leads into `m_rows`, and on the way from one set of rows to the next into both: so a
    /// step moves pointers, not rows.
    std::vector<const ApplicationRow*> m_shown;
};

} // namespace tavrik
