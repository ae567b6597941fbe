#include "ui/models/StyledText.h"

#include "platform/LetterFamilies.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace tavrik {

QString StyledText::familyFor(const QString& text) const {
    for (const char32_t point : text.toStdU32String()) {
        const QString family = QString::fromUtf8(familyOfStyledLetter(point));
        if (!family.isEmpty() && QFontDatabase::hasFamily(family))
            return family;
    }
    return QGuiApplication::font().family();
}

} // namespace tavrik
