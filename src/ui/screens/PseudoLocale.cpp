#include "ui/screens/PseudoLocale.h"

namespace tavrik {

QString PseudoLocale::translate(const char*, const char* text, const char*, int) const {
    constexpr int kLonger = 40; // per cent
    static const QString plain = QStringLiteral("aeiouncAEIOUNC");
    static const QString accented = QStringLiteral("áéíóúñçÁÉÍÓÚÑÇ");
    QString words = QString::fromUtf8(text);
    const auto length = words.size();
    for (qsizetype i = 0; i < length; ++i) {
        const auto at = plain.indexOf(words[i]);
        const bool isPlaceholder = i > 0 && words[i - 1] == QLatin1Char('%');
        if (at >= 0 && !isPlaceholder)
            words[i] = accented[at];
    }
    return words + QString(length * kLonger / 100, QLatin1Char('~'));
}

} // namespace tavrik
