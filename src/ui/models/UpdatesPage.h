#pragma once

#include "remote/RemoteKind.h"
#include "ui/models/UiServices.h"
#include "ui/models/UpdateOffer.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// What the program may ask the network for, the one question about it, and what came of the last requests.
/// Main thread; nothing here waits for an answer.
class UpdatesPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::UpdateOffer* offer READ offer CONSTANT)
    Q_PROPERTY(bool isQuestionShown READ isQuestionShown NOTIFY changed)
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed) ///< what the person chose was read
    Q_PROPERTY(bool checksForUpdates READ checksForUpdates WRITE setChecksForUpdates NOTIFY changed)
    Q_PROPERTY(bool fetchesTexts READ fetchesTexts WRITE setFetchesTexts NOTIFY changed)
    /// No network, whatever else is set, and whoever asks.
    Q_PROPERTY(bool isOff READ isOff WRITE setIsOff NOTIFY changed)
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY changed)
    Q_PROPERTY(QString addresses READ addresses CONSTANT) ///< of the services
    /// Whether there is a newer version, as far as is known.
    Q_PROPERTY(QString found READ found NOTIFY changed)
    /// When it was asked last, and the outcome.
    Q_PROPERTY(QString updatesRemark READ updatesRemark NOTIFY changed)
    Q_PROPERTY(QString textsRemark READ textsRemark NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) ///< something could not be saved, in a sentence

public:
    UpdatesPage(const UiServices& with, const InterfaceWords& words);

    UpdateOffer* offer() { return &m_offer; }

    bool isQuestionShown() const { return m_isQuestionShown; }

    bool isKnown() const;
    bool checksForUpdates() const;
    void setChecksForUpdates(bool checks);
    bool fetchesTexts() const;
    void setFetchesTexts(bool fetches);
    bool isOff() const;
    void setIsOff(bool isOff);
    bool isChecking() const;
    QString addresses() const;
    QString found() const;

    QString updatesRemark() const { return remark(RemoteKind::updates); }

    QString textsRemark() const { return remark(RemoteKind::texts); }

    QString problem() const;

    /// The answer to the question, which is then asked no more.
    Q_INVOKABLE void answerQuestion(bool isAllowed);

    /// Whether the window has room for the question. One that is shown stays until it is answered.
    void setWindowFree(bool isFree);

    /// The services have news.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void askWhenDue();
    QString remark(RemoteKind kind) const;

    const UiServices m_with;
    UpdateOffer m_offer;
    bool m_isWindowFree = false;
    bool m_isQuestionShown = false;
};

} // namespace tavrik
