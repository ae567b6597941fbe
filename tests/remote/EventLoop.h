#pragma once

#include "support/WaitFor.h"

#include <QCoreApplication>

namespace tavrik::test {

/// An application for one test, and waiting while its events run.
class EventLoop {
public:
    template<typename Predicate>
    [[nodiscard]] bool until(Predicate predicate, std::chrono::milliseconds limit = std::chrono::seconds(10)) {
        return waitFor(
            [&] {
                QCoreApplication::processEvents();
                return predicate();
            },
            limit);
    }

private:
    int m_count = 1;
    char m_name[6] = "tests";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{m_count, m_arguments};
};

} // namespace tavrik::test
