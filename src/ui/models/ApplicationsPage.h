#pragma once

#include "platform/NotificationCenter.h"
#include "ui/models/ApplicationsList.h"
#include "ui/models/PictureDrop.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The place for applications: both lists, and the filters and the order that they share. Main thread.
class ApplicationsPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::ApplicationsList* userApps READ userApps CONSTANT)
    Q_PROPERTY(tavrik::ApplicationsList* systemApps READ systemApps CONSTANT)
    Q_PROPERTY(tavrik::PictureDrop* drop READ drop CONSTANT)

    /// Of picture files, as file dialogs take them: "*.png *.jpg".
    Q_PROPERTY(QString picturePatterns READ picturePatterns CONSTANT)

    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY filtersChanged)
    /// Labels of the options, one of which holds; `filterOption` counts them from 0.
    Q_PROPERTY(QStringList filterOptions READ filterOptions CONSTANT)
    Q_PROPERTY(int filterOption READ filterOption WRITE setFilterOption NOTIFY filtersChanged)
    Q_PROPERTY(bool showOnlyDockItems READ showOnlyDockItems WRITE setShowOnlyDockItems NOTIFY filtersChanged)
    Q_PROPERTY(
        bool showOnlyNonSquircle READ showOnlyNonSquircle WRITE setShowOnlyNonSquircle NOTIFY filtersChanged)
    Q_PROPERTY(
        bool showUnsupportedApps READ showUnsupportedApps WRITE setShowUnsupportedApps NOTIFY filtersChanged)
    /// One of the filters differs from how they are at first; the search is none of them.
    Q_PROPERTY(bool isFiltered READ isFiltered NOTIFY filtersChanged)
    Q_PROPERTY(bool isAnalysing READ isAnalysing NOTIFY filtersChanged)
    Q_PROPERTY(double analysisProgress READ analysisProgress NOTIFY filtersChanged)

    Q_PROPERTY(bool sortsDescending READ sortsDescending WRITE setSortsDescending NOTIFY sortChanged)

public:
    explicit ApplicationsPage(const UiServices& with);

    ApplicationsList* userApps() { return &m_userApps; }

    ApplicationsList* systemApps() { return &m_systemApps; }

    PictureDrop* drop() { return &m_drop; }

    QString picturePatterns() const;
    QString searchText() const;
    QStringList filterOptions() const;
    int filterOption() const;
    bool showOnlyDockItems() const;
    bool showOnlyNonSquircle() const;
    bool showUnsupportedApps() const;
    bool isFiltered() const;
    bool isAnalysing() const;
    double analysisProgress() const;
    bool sortsDescending() const;

    void setSearchText(const QString& text);
    void setFilterOption(int option);
    void setShowOnlyDockItems(bool shows);
    void setShowOnlyNonSquircle(bool shows);
    void setShowUnsupportedApps(bool shows);
    void setSortsDescending(bool descending);

    /// Shows all that can be restyled.
    Q_INVOKABLE void clearFilters();
    /// Reads the applications again.
    Q_INVOKABLE void tryAgain();

Q_SIGNALS:
    void filtersChanged();
    void sortChanged();

private:
    const UiServices m_with;
    ApplicationsList m_userApps;
    ApplicationsList m_systemApps;
    PictureDrop m_drop;
    NotificationCenter::Observation m_observation;
};

} // namespace tavrik
