#include "ui/models/ThemeWork.h"

#include "ui/models/Text.h"

namespace tavrik {

bool ThemeWork::begin(const QString& text, const std::string& themeID) {
    if (isRunning())
        return false;
    m_text = text;
    m_themeID = toQString(themeID);
    dismiss();
    return true;
}

void ThemeWork::end(const QString& outcome, const QStringList& details) {
    conclude(outcome, details, false);
}

void ThemeWork::fail(const QString& sentence, const QStringList& details) {
    conclude(sentence, details, true);
}

void ThemeWork::refuse(const QString& sentence) {
    show(sentence, {}, true);
}

void ThemeWork::dismiss() {
    show({}, {}, false);
}

void ThemeWork::conclude(const QString& outcome, const QStringList& details, bool isFailure) {
    m_text.clear();
    m_themeID.clear();
    show(outcome, details, isFailure);
}

void ThemeWork::show(const QString& outcome, const QStringList& details, bool isFailure) {
    m_outcome = outcome;
    m_details = details;
    m_isFailure = isFailure;
    Q_EMIT changed();
}

} // namespace tavrik
