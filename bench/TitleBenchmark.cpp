#include "bench/Titles.h"

#include <QHash>
#include <QString>
#include <QTextBoundaryFinder>

#include <benchmark/benchmark.h>

#include <unordered_map>

namespace tavrik::bench {
namespace {

void ours(benchmark::State& state, Direction direction, const char* kind) {
    const FontReplacer fonts;
    const std::string titles = titlesToWalk(direction, kind);
    for (auto _ : state) {
        if (direction == Direction::toStyle)
            benchmark::DoNotOptimize(fonts.convert(titles, titleStyle));
        else
            benchmark::DoNotOptimize(fonts.convertToNormal(titles));
    }
}

/// The peer in the same process: a walk over the characters that the library finds, with a look-up for each.
void byQt(benchmark::State& state, Direction direction, const char* kind) {
    const auto hash = [](QStringView text) { return qHash(text); };
    const std::string titles = titlesToWalk(direction, kind);
    const auto map = titleMap(direction);
    std::vector<QString> keys; // what the views look at
    std::unordered_map<QStringView, QString, decltype(hash)> written(map.size(), hash);
    keys.reserve(map.size());
    for (const auto& [from, to] : map)
        written.emplace(keys.emplace_back(QString::fromStdString(from)), QString::fromStdString(to));
    const auto walk = [&] {
        const QString text = QString::fromStdString(titles);
        QString result;
        result.reserve(2 * text.size());
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
        for (qsizetype start = 0, end = finder.toNextBoundary(); end != -1; end = finder.toNextBoundary()) {
            const QStringView character = QStringView(text).sliced(start, end - start);
            const auto found = written.find(character);
            result += found == written.end() ? character : QStringView(found->second);
            start = end;
        }
        return result.toStdString();
    };
    if (walk() != walkedByUs(direction, titles))
        state.SkipWithError("the walks differ");
    for (auto _ : state)
        benchmark::DoNotOptimize(walk());
}

[[maybe_unused]] const bool registered = [] {
    registerTitles("titles", ours);
    registerTitles("titlesByQt", byQt);
    return true;
}();

} // namespace
} // namespace tavrik::bench
