#include "fonts/FontReplacer.h"

#include <QString>

#include <algorithm>
#include <string>

namespace tavrik {

namespace {

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char byte) { return (byte & 0x80) == 0; });
}

QString withoutMarks(const QString& text) {
    std::u32string points = text.normalized(QString::NormalizationForm_KD).toStdU32String();
    std::erase_if(points, [](char32_t point) { return QChar::category(point) == QChar::Mark_NonSpacing; });
    return QString::fromStdU32String(points);
}

} // namespace

std::string FontReplacer::folded(std::string_view text) const {
    std::string plain = convertToNormal(text);
    if (isAscii(plain)) {
        for (char& character : plain)
            if (character >= 'A' && character <= 'Z')
                character = static_cast<char>(character - 'A' + 'a');
        return plain;
    }
    // Small letters may be decomposed or marked again.
    QString small = withoutMarks(withoutMarks(QString::fromStdString(plain)).toCaseFolded());
    // Full case folding spells out two hundred letters; decomposed, all the others have become what they spell.
    small.replace(QChar(u'ß'), QStringLiteral("ss"));
    // A styled letter with an accent is freed only by now; a few capitals have a styled one for their small
    // letter.
    const QString bare = QString::fromStdString(convertToNormal(small.toStdString()));
    return bare.normalized(QString::NormalizationForm_C).toStdString();
}

} // namespace tavrik
