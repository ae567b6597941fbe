#pragma once

#include "platform/Alerts.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <cstddef>
#include <functional>
#include <vector>

namespace tavrik {

/// Asks by a sheet on the window. A question that comes while another is shown goes first; the other waits.
///
/// `ask` may be called on any thread and waits there; on the main thread the window goes on living meanwhile.
/// When the application ends, every question gets the answer that loses nothing.
class WindowAlerts : public QObject, public Alerts {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QStringList buttons READ buttons NOTIFY changed)
    Q_PROPERTY(bool isWarning READ isWarning NOTIFY changed)

public:
    WindowAlerts();
    ~WindowAlerts() override;

    std::size_t ask(const Alert& alert) override;

    bool isShown() const { return !m_questions.empty(); }

    QString title() const;
    QString text() const;
    QStringList buttons() const; ///< the default one first
    bool isWarning() const;

    /// Nobody is there to answer any more: each question that was asked gets the answer that loses nothing.
    void answerAll();

    /// A button of the question that is shown was pressed.
    Q_INVOKABLE void answer(int button);

Q_SIGNALS:
    void changed();

private:
    struct Question {
        Alert alert;
        std::function<void(std::size_t)> answered;
    };

    std::size_t askOnMain(const Alert& alert);
    std::size_t askFromElsewhere(const Alert& alert);
    void show(Question question);

    std::vector<Question> m_questions; ///< the last one is shown
};

} // namespace tavrik
