#include "ui/EnglishPlurals.h"

namespace tavrik {

QString EnglishPlurals::translate(const char*, const char* text, const char*, int n) const {
    if (n < 0)
        return {};
    QString words = QString::fromUtf8(text);
    return words.replace(QLatin1String("(s)"), n == 1 ? QString() : QStringLiteral("s"));
}

} // namespace tavrik
