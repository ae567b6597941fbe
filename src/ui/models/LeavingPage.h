#pragma once

#include "maintenance/Belongings.h"
#include "maintenance/RemoveEverything.h"
#include "maintenance/Traces.h"
#include "ui/models/PageWork.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The way out: takes back all that the program has put into the Mac, and afterwards, when that is wanted, all
/// that it keeps for itself. Main thread.
class LeavingPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::PageWork* work READ work CONSTANT)
    Q_PROPERTY(Stage stage READ stage NOTIFY changed)
    /// What there is to take back, { figure, text } each.
    Q_PROPERTY(QVariantList figures READ figures NOTIFY changed)
    /// What was done, and what is left after all, a sentence each.
    Q_PROPERTY(QStringList done READ done NOTIFY changed)
    Q_PROPERTY(QStringList traces READ traces NOTIFY changed)
    /// What the program keeps for itself, { figure, text } each, and its size in all.
    Q_PROPERTY(QVariantList belongings READ belongings NOTIFY changed)
    Q_PROPERTY(QString size READ size NOTIFY changed)

public:
    enum class Stage {
        Unknown,    ///< not read yet, or it cannot be read
        Present,    ///< there is something to take back
        Nothing,    ///< there is nothing to take back
        TakenBack,  ///< all of it was, and that was looked at
        Unfinished, ///< something is left
    };
    Q_ENUM(Stage)

    explicit LeavingPage(const UiServices& with);

    PageWork* work() { return &m_work; }

    Stage stage() const { return m_stage; }

    const QVariantList& figures() const { return m_figures; }

    const QStringList& done() const { return m_done; }

    const QStringList& traces() const { return m_traces; }

    const QVariantList& belongings() const { return m_belongings; }

    const QString& size() const { return m_size; }

    /// Looks what there is: called whenever the page is shown.
    Q_INVOKABLE void refresh();
    /// Takes everything back. The person was asked.
    Q_INVOKABLE void takeBack();
    /// Deletes what the program keeps, for good. The person was asked.
    Q_INVOKABLE void deleteAll();

Q_SIGNALS:
    void changed();
    /// All is deleted: nothing may be saved any more, the program should end.
    void left();

private:
    struct Found {
        Result<Traces> traces;
        Belongings belongings;
    };

    void take(const Found& found);
    void finish(const Result<RemoveEverything::Outcome>& outcome);
    void setStage(Stage stage);

    const UiServices m_with;
    PageWork m_work;
    Stage m_stage = Stage::Unknown;
    QVariantList m_figures;
    QStringList m_done;
    QStringList m_traces;
    QVariantList m_belongings;
    QString m_size;
};

} // namespace tavrik
