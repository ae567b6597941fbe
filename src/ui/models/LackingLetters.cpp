#include "ui/models/LackingLetters.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace tavrik {

namespace {

enum class Lack { nothing, digit, letter };

Lack lackOf(const QString& character, const FontReplacer::FontMap& style) {
    const char32_t first = character.toStdU32String().front();
    if (!QChar::isLetterOrNumber(first))
        return Lack::nothing;
    const std::string text = character.toStdString();
    if (style.letters.contains(text) || (style.digits && style.digits->contains(text)))
        return Lack::nothing;
    return QChar::isNumber(first) ? Lack::digit : Lack::letter;
}

Lack lackOf(const std::string& name, const FontReplacer::FontMap& style) {
    const QString text = QString::fromStdString(name);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    Lack worst = Lack::nothing;
    for (auto start = finder.position(); finder.toNextBoundary() != -1; start = finder.position())
        worst = std::max(worst, lackOf(text.mid(start, finder.position() - start), style));
    return worst;
}

} // namespace

LackingLetters lackingLetters(const std::vector<std::string>& names, const FontReplacer::FontMap& style) {
    LackingLetters lacking;
    for (const std::string& name : names) {
        const Lack lack = lackOf(name, style);
        if (lack != Lack::nothing)
            lacking.names.push_back(name);
        lacking.onlyDigits = lacking.onlyDigits && lack != Lack::letter;
    }
    return lacking;
}

} // namespace tavrik
