#include "ui/models/PageWork.h"

#include "app/Managers.h"

#include <utility>

namespace tavrik {

void PageWork::begin(const QString& activity, Beside beside) {
    m_activity = activity;
    m_remark.clear();
    m_isBlocking = beside == Beside::nothing;
    if (m_isBlocking) {
        m_with.managers.progress.show(nullptr, 0);
        m_with.managers.progress.update(activity.toStdString(), 0);
    }
    Q_EMIT changed();
}

void PageWork::end() {
    m_activity.clear();
    if (std::exchange(m_isBlocking, false))
        m_with.managers.progress.hide();
    Q_EMIT changed();
}

void PageWork::show(const QString& sentence, bool isBad) {
    m_remark = sentence;
    m_isRemarkBad = isBad;
    Q_EMIT changed();
}

} // namespace tavrik
