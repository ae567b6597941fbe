#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The one long work that goes on in the themes place, and what came of the last one. Main thread.
class ThemeWork : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)       ///< "Applying “Ocean”…"; empty when nothing runs
    Q_PROPERTY(QString themeID READ themeID NOTIFY changed) ///< of the theme that is worked on; may be empty
    Q_PROPERTY(QString outcome READ outcome NOTIFY changed) ///< a sentence; empty when there is none to show
    Q_PROPERTY(QStringList details READ details NOTIFY changed) ///< further sentences
    Q_PROPERTY(bool isFailure READ isFailure NOTIFY changed)

public:
    bool isRunning() const { return !m_text.isEmpty(); }

    QString text() const { return m_text; }

    QString themeID() const { return m_themeID; }

    QString outcome() const { return m_outcome; }

    QStringList details() const { return m_details; }

    bool isFailure() const { return m_isFailure; }

    /// False, and nothing is begun, while another work runs.
    [[nodiscard]] bool begin(const QString& text, const std::string& themeID = {});
    void end(const QString& outcome, const QStringList& details = {});
    void fail(const QString& sentence, const QStringList& details = {});
    /// Something else could not be begun; what runs goes on.
    void refuse(const QString& sentence);

    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();

private:
    void conclude(const QString& outcome, const QStringList& details, bool isFailure);
    void show(const QString& outcome, const QStringList& details, bool isFailure);

    QString m_text;
    QString m_themeID;
    QString m_outcome;
    QStringList m_details;
    bool m_isFailure = false;
};

} // namespace tavrik
