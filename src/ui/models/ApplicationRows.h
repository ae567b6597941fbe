#pragma once

#include "icons/list/ApplicationsModel.h"
#include "platform/NotificationCenter.h"
#include "ui/models/UiServices.h"

#include <QIdentityProxyModel>

#include <set>
#include <string>
#include <vector>

namespace tavrik {

/// The rows of a list with what the window says of each beyond its record. Main thread.
class ApplicationRows : public QIdentityProxyModel {
    Q_OBJECT

public:
    enum Role {
        shownIcon =
            ApplicationsModel::selectedIconIndex + 1, ///< file of the chosen icon; empty for the own one
        styledTitle,                                  ///< as Launchpad shows it, when that is not the name
        caption,                                      ///< how it stands with the application
        isStaged,                                     ///< its icons are to change with the next apply
    };

    /// `rows` outlives it.
    ApplicationRows(ApplicationsModel& rows, const UiServices& with);

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    bool isStagedAt(const QModelIndex& index) const;
    QString shownIconAt(const QModelIndex& index) const;
    QString captionAt(const QModelIndex& index) const;
    bool isFoundByIdentifierAlone(const QModelIndex& index) const;
    void stagedChanged();
    void searchChanged();

    ApplicationsModel& m_rows;
    const UiServices m_with;
    std::set<std::string> m_staged;
    std::string m_foldedSearch;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
