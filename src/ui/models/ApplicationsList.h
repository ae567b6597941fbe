#pragma once

#include "icons/list/ApplicationsModel.h"
#include "icons/list/ApplicationsTable.h"
#include "platform/Bytes.h"
#include "platform/Result.h"
#include "ui/models/ApplicationRows.h"
#include "ui/models/UiServices.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <set>
#include <string>

namespace tavrik {

class ApplicationsCoordinator;

/// One list of applications, and what a person does with its rows. Places are counted as `selectedIconIndex`
/// of the rows is. What is refused is said by a notice. Main thread.
class ApplicationsList : public QObject, private ApplicationsTable {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
    Q_PROPERTY(State state READ state NOTIFY changed)
    Q_PROPERTY(int shownCount READ shownCount NOTIFY changed)
    Q_PROPERTY(int total READ total NOTIFY changed)

public:
    enum State {
        Loading,
        Unreadable, ///< the Launchpad database cannot be read
        Empty,
        NoMatch, ///< the filters let nothing pass
        Ready,
    };
    Q_ENUM(State)

    ApplicationsList(ApplicationsCoordinator& coordinator, const UiServices& with);
    ~ApplicationsList() override;

    QAbstractItemModel* rows() { return &m_shown; }

    State state() const;

    int shownCount() const { return m_rows.rowCount(); }

    int total() const;

    Q_INVOKABLE void select(const QString& bundleID, int place);
    /// An icon of the application is removed, one of a theme is hidden.
    Q_INVOKABLE void remove(const QString& bundleID, int place);
    /// Adds a picture for each file, in their order; the last one is chosen.
    Q_INVOKABLE void addFiles(const QString& bundleID, const QList<QUrl>& files);
    /// A picture that was dragged here without a file.
    Q_INVOKABLE void addData(const QString& bundleID, const QByteArray& data);
    /// What is on the clipboard: files, or a picture.
    Q_INVOKABLE void paste(const QString& bundleID);

    /// The name of the theme that this icon is of.
    Q_INVOKABLE QString themeOf(const QString& icon) const;

Q_SIGNALS:
    /// Rows came in or have changed.
    void shown();
    void changed();
    /// The pictures that were handed over for this application are all taken in or refused.
    void added(const QString& bundleID);

private:
    struct Adding;

    void show(const std::vector<ApplicationRow>& rows) override;
    void add(const std::shared_ptr<Adding>& adding, Result<Bytes> content, const QString& name);
    void noteOutcome(Adding& adding, const Status& outcome);

    ApplicationsCoordinator& m_coordinator;
    const UiServices m_with;
    ApplicationsModel m_rows;
    ApplicationRows m_shown;
};

} // namespace tavrik
