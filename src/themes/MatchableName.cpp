#include "themes/MatchableName.h"

#include "fonts/FontReplacer.h"

#include <QString>

#include <algorithm>
#include <array>

namespace tavrik {

namespace {

/// Of the shorter name, in letters; of less, anything can be found anywhere.
constexpr std::size_t kFewestLetters = 3;

using Words = std::vector<std::u32string>;

bool isWordLetter(char32_t point) {
    return QChar::isLetterOrNumber(point) || QChar::isMark(point);
}

/// "VSCode" is "VS" and "Code", "TextEdit" is "Text" and "Edit".
bool startsWord(const std::u32string& text, std::size_t place) {
    if (place == 0 || !isWordLetter(text[place - 1]))
        return true;
    if (!QChar::isUpper(text[place]))
        return false;
    return QChar::isLower(text[place - 1]) || (place + 1 < text.size() && QChar::isLower(text[place + 1]));
}

Words wordsOf(std::string_view name, const FontReplacer& fonts) {
    const std::u32string text = QString::fromStdString(fonts.convertToNormal(name))
                                    .normalized(QString::NormalizationForm_C)
                                    .toStdU32String();
    Words words;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char32_t point = text[place];
        if (point == U'&' || point == U'+')
            words.push_back(point == U'&' ? U"and" : U"plus");
        else if (isWordLetter(point) && (startsWord(text, place) || words.empty()))
            words.push_back({point});
        else if (isWordLetter(point))
            words.back() += point;
    }
    for (std::u32string& word : words)
        word = QString::fromStdString(fonts.folded(QString::fromStdU32String(word).toStdString()))
                   .toStdU32String();
    std::erase(words, U"");
    return words;
}

/// "2024", "v3", "2x", "512x512".
bool isNumber(std::u32string_view word) {
    if (word.starts_with(U'v'))
        word.remove_prefix(1);
    return !word.empty() && word.front() != U'x' && std::ranges::all_of(word, [](char32_t point) {
        return point == U'x' || (point >= U'0' && point <= U'9');
    });
}

bool tellsVersion(std::u32string_view word) {
    static constexpr std::array<std::u32string_view, 10> kWords = {
        U"app", U"application", U"alpha", U"beta", U"rc", U"icon", U"icons", U"logo", U"macos", U"osx"};
    return std::ranges::find(kWords, word) != kWords.end() || isNumber(word);
}

/// What a letter of the shorter name is worth by where it is found.
constexpr double kInWord = 1;      ///< at a word's start, or following on one that is
constexpr double kInRun = 0.6;     ///< following on one in the middle of a word
constexpr double kAnywhere = 0.25; ///< in the middle of a word, on its own
constexpr double kCutWord = 0.95;  ///< of all that, when the last one is not the last of its word

/// The most that the letters of `part` are worth in `whole`, 0 to 1 for each on average; 0 when they do not all
/// occur in order.
double quality(const MatchableName& part, const MatchableName& whole) {
    // For each place of the whole: the best sum with the last letter found there, by the kind of its run.
    constexpr double kNever = -1;
    const std::size_t size = whole.letters.size();
    std::vector<double> inWord(size + 1, kNever);
    std::vector<double> inRun(size + 1, kNever);
    std::vector<double> nextInWord(size + 1);
    std::vector<double> nextInRun(size + 1);
    for (std::size_t letter = 0; letter < part.letters.size(); ++letter) {
        double before = letter == 0 ? 0 : kNever; // the best that ends anywhere before
        nextInWord[0] = nextInRun[0] = kNever;
        for (std::size_t place = 0; place < size; ++place) {
            double& word = nextInWord[place + 1];
            double& run = nextInRun[place + 1];
            word = run = kNever;
            if (letter > 0 && place > 0)
                before = std::max({before, inWord[place - 1], inRun[place - 1]});
            if (part.letters[letter] != whole.letters[place])
                continue;
            const double best = std::max({before, inWord[place], inRun[place]});
            if (best >= 0 && whole.starts[place])
                word = best + kInWord;
            if (inWord[place] >= 0)
                word = std::max(word, inWord[place] + kInWord);
            if (inRun[place] >= 0)
                run = inRun[place] + kInRun;
            if (before >= 0)
                run = std::max(run, before + kAnywhere);
        }
        inWord.swap(nextInWord);
        inRun.swap(nextInRun);
    }
    double best = 0;
    for (std::size_t place = 0; place < size; ++place) {
        const bool endsWord = place + 1 == size || whole.starts[place + 1];
        best = std::max(best, std::max(inWord[place + 1], inRun[place + 1]) * (endsWord ? 1 : kCutWord));
    }
    return best / static_cast<double>(part.letters.size());
}

} // namespace

MatchableName matchable(std::string_view name, const FontReplacer& fonts) {
    const Words words = wordsOf(name, fonts);
    std::size_t kept = words.size();
    while (kept > 1 && tellsVersion(words[kept - 1]))
        --kept;
    MatchableName prepared;
    for (std::size_t i = 0; i < words.size(); ++i) {
        prepared.letters += words[i];
        if (i < kept)
            prepared.core = prepared.letters;
        prepared.starts.resize(prepared.letters.size() - words[i].size() + 1, false);
        prepared.starts.back() = true;
        prepared.starts.resize(prepared.letters.size(), false);
    }
    for (const char32_t point : prepared.letters)
        prepared.alphabet |= std::uint64_t{1} << (point % 64);
    return prepared;
}

double similarity(const MatchableName& one, const MatchableName& other) {
    const bool isLonger = one.letters.size() > other.letters.size();
    const MatchableName& part = isLonger ? other : one;
    const MatchableName& whole = isLonger ? one : other;
    if (part.letters.size() < kFewestLetters || (part.alphabet & ~whole.alphabet) != 0)
        return 0;
    const double found = quality(part, whole);
    const double share = static_cast<double>(part.letters.size()) / static_cast<double>(whole.letters.size());
    return found * found * (0.5 + 0.5 * share);
}

} // namespace tavrik
