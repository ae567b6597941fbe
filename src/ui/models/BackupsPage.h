#pragma once

#include "backups/BackupManager.h"
#include "platform/NotificationCenter.h"
#include "ui/models/BackupDetail.h"
#include "ui/models/BackupsModel.h"
#include "ui/models/PageWork.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>
#include <vector>

namespace tavrik {

/// The backups, in the settings window: takes them, looks into them, puts one back. Main thread.
class BackupsPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::BackupsModel* backups READ backups CONSTANT)
    Q_PROPERTY(tavrik::BackupDetail* detail READ detail CONSTANT)
    Q_PROPERTY(tavrik::PageWork* work READ work CONSTANT)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    /// Why the backups cannot be listed; empty when they can.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

    /// The chosen one, its place in the list; -1 and empty without one.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY changed)
    Q_PROPERTY(QString currentTitle READ currentTitle NOTIFY changed)
    Q_PROPERTY(QString currentRemark READ currentRemark NOTIFY changed)

    /// How many dated backups are kept, and what that means for those there are.
    Q_PROPERTY(int keepCount READ keepCount WRITE setKeepCount NOTIFY changed)
    Q_PROPERTY(QString keepNote READ keepNote NOTIFY changed)

public:
    explicit BackupsPage(const UiServices& with);

    BackupsModel* backups() { return &m_backups; }

    BackupDetail* detail() { return &m_detail; }

    PageWork* work() { return &m_work; }

    bool isLoaded() const { return m_isLoaded; }

    const QString& problem() const { return m_problem; }

    int currentRow() const { return m_backups.rowOf(m_current); }

    QString currentTitle() const;
    QString currentRemark() const;

    int keepCount() const { return m_keepCount; }

    /// Kept within 1 and 999.
    void setKeepCount(int count);
    QString keepNote() const;

    /// Reads the list anew: called whenever the page is shown. Chooses the newest when nothing is chosen.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void choose(int row);
    Q_INVOKABLE void backUpNow();
    /// Whether the chosen one could be put back.
    Q_INVOKABLE void verify();
    /// Puts the chosen one back. The person was asked.
    Q_INVOKABLE void restore();

Q_SIGNALS:
    void changed();

private:
    using Items = std::vector<BackupListItem>;

    void take(const Result<Items>& items, int keepCount);
    std::optional<BackupListItem> current() const;

    const UiServices m_with;
    BackupsModel m_backups;
    BackupDetail m_detail;
    PageWork m_work;
    Items m_items; ///< beside the rows
    std::string m_current;
    QString m_problem;
    bool m_isLoaded = false;
    int m_keepCount = 0;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
