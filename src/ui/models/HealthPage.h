#pragma once

#include "maintenance/HealthFinding.h"
#include "ui/models/FindingsModel.h"
#include "ui/models/PageWork.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

struct HealthRepair;

/// Whether all that the program has put into the Mac is as it should be, and what mends the rest. Main thread.
class HealthPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::FindingsModel* findings READ findings CONSTANT)
    Q_PROPERTY(tavrik::PageWork* work READ work CONSTANT)
    Q_PROPERTY(bool isChecked READ isChecked NOTIFY changed)
    /// What the check says in a few words, and whether that is good.
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(bool isGood READ isGood NOTIFY changed)
    /// What mending would do, a sentence each; empty when it would do nothing.
    Q_PROPERTY(QStringList mending READ mending NOTIFY changed)

public:
    explicit HealthPage(const UiServices& with);

    FindingsModel* findings() { return &m_findings; }

    PageWork* work() { return &m_work; }

    bool isChecked() const { return m_isChecked; }

    const QString& headline() const { return m_headline; }

    bool isGood() const { return m_isGood; }

    const QStringList& mending() const { return m_mending; }

    Q_INVOKABLE void check();
    /// Mends what the last check found. The person was asked.
    Q_INVOKABLE void mend();

Q_SIGNALS:
    void changed();

private:
    void showFound(const std::vector<HealthFinding>& findings);
    void showMended(const HealthRepair& repair);

    const UiServices m_with;
    FindingsModel m_findings;
    PageWork m_work;
    std::vector<HealthFinding> m_found;
    bool m_isChecked = false;
    bool m_isGood = false;
    QString m_headline;
    QStringList m_mending;
};

} // namespace tavrik
