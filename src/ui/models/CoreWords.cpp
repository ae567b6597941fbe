#include "ui/models/CoreWords.h"

#include "ui/models/CoreCatalogue.h"
#include "ui/models/Text.h"

#include <QCoreApplication>

#include <optional>
#include <span>

namespace tavrik {

namespace {

constexpr int kDeepest = 4; ///< of sentences within sentences

/// A sentence of the catalogue, cut at the places of its values.
class Pattern {
public:
    explicit Pattern(const char* told) : Pattern(told, told) {}

    /// One that the window says as `shown`.
    Pattern(const char* told, const char* shown) : m_shown(shown) {
        const QString text = QString::fromUtf8(told);
        m_pieces.append(QString());
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] == QLatin1Char('%') && i + 1 < text.size() && text[i + 1].isDigit()) {
                m_pieces.append(QString());
                ++i;
            } else {
                m_pieces.back() += text[i];
                ++m_length;
            }
        }
    }

    const char* shown() const { return m_shown; }

    /// How much of a text it explains: of two that fit, the one that explains more is meant.
    qsizetype length() const { return m_length; }

    /// The values, in the order of their places, when the text is this sentence.
    std::optional<QStringList> valuesIn(const QString& text) const {
        if (m_pieces.size() == 1)
            return text == m_pieces[0] ? std::optional(QStringList()) : std::nullopt;
        if (!text.startsWith(m_pieces.front()) || !text.endsWith(m_pieces.back()))
            return std::nullopt;
        QStringList values;
        qsizetype from = m_pieces.front().size();
        const qsizetype last = text.size() - m_pieces.back().size();
        for (qsizetype i = 1; i < m_pieces.size(); ++i) {
            const qsizetype to = i + 1 == m_pieces.size() ? last : text.indexOf(m_pieces[i], from);
            if (to <= from || to > last)
                return std::nullopt;
            values.append(text.mid(from, to - from));
            from = to + m_pieces[i].size();
        }
        return values;
    }

private:
    const char* m_shown;
    QStringList m_pieces;
    qsizetype m_length = 0;
};

std::vector<Pattern> patternsOf(std::span<const char* const> sources) {
    return std::vector<Pattern>(sources.begin(), sources.end());
}

std::vector<Pattern> allSentences() {
    std::vector<Pattern> patterns = patternsOf(coreSentences());
    for (const Reworded& sentence : rewordedSentences())
        patterns.emplace_back(sentence.told, sentence.shown);
    return patterns;
}

/// A value stays as it is, percent signs included.
QString filled(const QString& words, const QStringList& values) {
    QString text;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const int number =
            words[i] == QLatin1Char('%') && i + 1 < words.size() ? words[i + 1].digitValue() : -1;
        if (number < 1 || number > values.size()) {
            text += words[i];
            continue;
        }
        text += values[number - 1];
        ++i;
    }
    return text;
}

QString said(const QString& text, int depth);

std::optional<QString> saidBy(const std::vector<Pattern>& patterns, const QString& text, int depth) {
    const Pattern* best = nullptr;
    QStringList values;
    for (const Pattern& pattern : patterns) {
        if (best && pattern.length() <= best->length())
            continue;
        if (auto found = pattern.valuesIn(text)) {
            best = &pattern;
            values = std::move(*found);
        }
    }
    if (!best)
        return std::nullopt;
    for (QString& value : values)
        value = said(value, depth + 1);
    return filled(QCoreApplication::translate("Core", best->shown()), values);
}

/// The sentences one by one, when each is known for itself.
std::optional<QString> saidInParts(const std::vector<Pattern>& patterns, const QString& text, int depth) {
    const QString gap = QStringLiteral(". ");
    for (qsizetype at = text.indexOf(gap); at >= 0; at = text.indexOf(gap, at + 1)) {
        if (const auto first = saidBy(patterns, text.left(at + 1), depth))
            return *first + QLatin1Char(' ') + said(text.mid(at + gap.size()), depth);
    }
    return std::nullopt;
}

QString said(const QString& text, int depth) {
    static const std::vector<Pattern> sentences = allSentences();
    if (depth >= kDeepest)
        return text;
    if (auto whole = saidBy(sentences, text, depth))
        return *whole;
    return saidInParts(sentences, text, depth).value_or(text);
}

} // namespace

QString inTheirLanguage(std::string_view words) {
    static const std::vector<Pattern> labels = patternsOf(coreLabels());
    const QString text = toQString(words);
    if (auto label = saidBy(labels, text, 0))
        return *label;
    return said(text, 0);
}

QStringList inTheirLanguage(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts)
        list.append(inTheirLanguage(text));
    return list;
}

} // namespace tavrik
