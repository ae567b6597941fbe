#include "ui/models/WindowAlerts.h"

#include "platform/MainQueue.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <future>
#include <memory>

namespace tavrik {

WindowAlerts::WindowAlerts() {
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
                     &WindowAlerts::answerAll);
}

WindowAlerts::~WindowAlerts() {
    answerAll();
}

std::size_t WindowAlerts::ask(const Alert& alert) {
    return QThread::currentThread() == thread() ? askOnMain(alert) : askFromElsewhere(alert);
}

std::size_t WindowAlerts::askOnMain(const Alert& alert) {
    std::size_t answer = alert.buttonWithoutAnswer();
    QEventLoop loop;
    show({alert, [&](std::size_t button) {
              answer = button;
              loop.quit();
          }});
    loop.exec();
    return answer;
}

std::size_t WindowAlerts::askFromElsewhere(const Alert& alert) {
    std::size_t answer = alert.buttonWithoutAnswer();
    // Only the main thread's side holds the promise: should the question be dropped with the application, the
    // wait ends too.
    auto promise = std::make_shared<std::promise<void>>();
    const std::future<void> answered = promise->get_future();
    MainQueue::async(this, [this, alert, &answer, promise = std::move(promise)] {
        show({alert, [&answer, promise](std::size_t button) {
                  answer = button;
                  promise->set_value();
              }});
    });
    answered.wait();
    return answer;
}

void WindowAlerts::show(Question question) {
    m_questions.push_back(std::move(question));
    Q_EMIT changed();
}

void WindowAlerts::answerAll() {
    while (isShown())
        answer(static_cast<int>(m_questions.back().alert.buttonWithoutAnswer()));
}

QString WindowAlerts::title() const {
    return isShown() ? inTheirLanguage(m_questions.back().alert.title) : QString();
}

QString WindowAlerts::text() const {
    return isShown() ? inTheirLanguage(m_questions.back().alert.text) : QString();
}

QStringList WindowAlerts::buttons() const {
    return isShown() ? inTheirLanguage(m_questions.back().alert.buttons) : QStringList();
}

bool WindowAlerts::isWarning() const {
    return isShown() && m_questions.back().alert.style != AlertStyle::informational;
}

void WindowAlerts::answer(int button) {
    if (!isShown() || button < 0 || button >= buttons().size())
        return;
    const auto answered = std::move(m_questions.back().answered);
    m_questions.pop_back();
    Q_EMIT changed();
    answered(static_cast<std::size_t>(button));
}

} // namespace tavrik
