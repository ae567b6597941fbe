#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

class InterfaceWords;
struct UpdateFinding;

/// What the sheet of the update check shows: whether a newer version is there, what is in it, or why that could
/// not be found out. Nothing is installed: a download is the browser's. Main thread.
class UpdateOffer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Stage stage READ stage NOTIFY changed)
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)     ///< what it means, or what to do
    Q_PROPERTY(QString notes READ notes NOTIFY changed)   ///< what is new, as plain text; may be empty
    Q_PROPERTY(QString advice READ advice NOTIFY changed) ///< how to come to it; may be empty
    Q_PROPERTY(bool isFound READ isFound NOTIFY changed)  ///< there is a newer version for this Mac
    /// What the window tells of without being asked; empty when there is nothing to tell.
    Q_PROPERTY(QString newVersion READ newVersion NOTIFY changed)

public:
    enum class Stage {
        Checking,
        Newest,
        Available,
        Unfit, ///< not for this macOS
        Failed,
        Off, ///< the person wants no network
    };
    Q_ENUM(Stage)

    UpdateOffer(const UiServices& with, const InterfaceWords& words);

    Stage stage() const { return m_stage; }

    bool isShown() const { return m_isShown; }

    const QString& headline() const { return m_headline; }

    const QString& text() const { return m_text; }

    const QString& notes() const { return m_notes; }

    const QString& advice() const { return m_advice; }

    bool isFound() const;
    QString newVersion() const;

    /// The person asks; the answer comes into the sheet.
    Q_INVOKABLE void check();
    /// The same without the sheet: the settings tell the answer in their place.
    Q_INVOKABLE void checkQuietly();
    /// Shows what was found already.
    Q_INVOKABLE void show();
    Q_INVOKABLE void close();
    /// Opens the download in the browser.
    Q_INVOKABLE void download();
    /// Tells of this version no more.
    Q_INVOKABLE void skip();

    /// The services have news.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void read();
    void readFinding(const UpdateFinding& finding);
    void say(Stage stage, const QString& headline, const QString& text);

    const UiServices m_with;
    const InterfaceWords& m_words;
    Stage m_stage = Stage::Newest;
    bool m_isShown = false;
    QString m_headline;
    QString m_text;
    QString m_notes;
    QString m_advice;
};

} // namespace tavrik
