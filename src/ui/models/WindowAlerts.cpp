#include "ui/models/WindowAlerts.h"

#include "platform/MainQueue.h"
#include "ui/models/Text.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>

namespace tavrik {

struct WindowAlerts::Question {
    const Alert& alert;
    std::size_t answer;
    QEventLoop loop{};
};

std::size_t WindowAlerts::ask(const Alert& alert) {
    std::size_t answer = alert.buttonWithoutAnswer();
    MainQueue::sync([&] { answer = askOnMain(alert); });
    return answer;
}

std::size_t WindowAlerts::askOnMain(const Alert& alert) {
    Question question{alert, alert.buttonWithoutAnswer()};
    m_questions.push_back(&question);
    Q_EMIT changed();
    question.loop.exec();
    std::erase(m_questions, &question);
    Q_EMIT changed();
    return question.answer;
}

QString WindowAlerts::title() const {
    return isShown() ? toQString(m_questions.back()->alert.title) : QString();
}

QString WindowAlerts::text() const {
    return isShown() ? toQString(m_questions.back()->alert.text) : QString();
}

QStringList WindowAlerts::buttons() const {
    return isShown() ? toQStrings(m_questions.back()->alert.buttons) : QStringList();
}

bool WindowAlerts::isWarning() const {
    return isShown() && m_questions.back()->alert.style != AlertStyle::informational;
}

void WindowAlerts::answer(int button) {
    if (!isShown() || button < 0 || button >= buttons().size())
        return;
    m_questions.back()->answer = static_cast<std::size_t>(button);
    m_questions.back()->loop.quit();
}

} // namespace tavrik
