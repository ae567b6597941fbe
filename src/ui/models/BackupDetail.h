#pragma once

#include "ui/models/LayoutDrawing.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tavrik {

/// What the chosen backup holds, and what has changed since it was taken. Main thread; read in the background.
class BackupDetail : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isReading READ isReading NOTIFY changed)
    /// Why it cannot be shown; empty when it can.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QVariantList pages READ pages NOTIFY changed) ///< as LayoutDrawing has them
    Q_PROPERTY(QVariantList tiles READ tiles NOTIFY changed)
    Q_PROPERTY(QString since READ since NOTIFY changed) ///< in a sentence
    Q_PROPERTY(QStringList sinceLines READ sinceLines NOTIFY changed)

public:
    explicit BackupDetail(const UiServices& with) : m_with(with) {}

    bool isReading() const { return m_isReading; }

    const QString& problem() const { return m_problem; }

    const QVariantList& pages() const { return m_drawing.pages; }

    const QVariantList& tiles() const { return m_drawing.tiles; }

    const QString& since() const { return m_since; }

    const QStringList& sinceLines() const { return m_sinceLines; }

    /// Reads the backup in this file; nothing shows nothing. What was shown stays until that is read.
    void show(const std::optional<MacPath>& backup);

Q_SIGNALS:
    void changed();

private:
    struct Reading;

    static Reading read(Managers& managers, const MacPath& backup);
    void take(const Reading& reading);

    const UiServices m_with;
    int m_request = 0; ///< the last one; what comes for an earlier one is dropped
    bool m_isReading = false;
    QString m_problem;
    LayoutDrawing m_drawing;
    QString m_since;
    QStringList m_sinceLines;
};

} // namespace tavrik
