#include "ui/models/LackingLetters.h"

#include "ui/models/Text.h"

#include <QTextBoundaryFinder>

namespace tavrik {

bool isLackingLetters(std::string_view name, const FontReplacer::FontMap& style) {
    const QString text = toQString(name);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (auto start = finder.position(); finder.toNextBoundary() != -1; start = finder.position()) {
        const QString character = text.mid(start, finder.position() - start);
        const std::string plain = character.toStdString();
        if (QChar::isLetterOrNumber(character.toStdU32String().front()) && !style.letters.contains(plain) &&
            !(style.digits && style.digits->contains(plain)))
            return true;
    }
    return false;
}

} // namespace tavrik
