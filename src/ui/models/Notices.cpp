#include "ui/models/Notices.h"

namespace tavrik {

void Notices::refuse(const QString& sentence) {
    show(sentence, true);
}

void Notices::tell(const QString& sentence) {
    show(sentence, false);
}

void Notices::dismiss() {
    show({}, false);
}

void Notices::show(const QString& sentence, bool isRefusal) {
    m_text = sentence;
    m_isRefusal = isRefusal;
    Q_EMIT changed();
}

} // namespace tavrik
