#pragma once

#include "fonts/FontReplacer.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <map>
#include <string>

namespace tavrik::bench {

enum class Direction { toStyle, toPlain };

inline constexpr const char* titleStyle = "Mathematical Bold";

inline std::string walkedByUs(Direction direction, const std::string& titles) {
    const FontReplacer fonts;
    return direction == Direction::toStyle ? fonts.convert(titles, titleStyle) : fonts.convertToNormal(titles);
}

/// 1 MB of titles, a line each: those of a file in bench/titles/, over and over. Styled ones for the way back.
inline std::string titlesToWalk(Direction direction, const std::string& kind) {
    constexpr std::size_t size = 1'000'000;
    std::ifstream file(BENCH_TITLES "/" + kind + ".txt");
    std::string once((std::istreambuf_iterator<char>(file)), {});
    if (direction == Direction::toPlain)
        once = walkedByUs(Direction::toStyle, once);
    std::string titles;
    while (!once.empty() && titles.size() < size)
        titles += once;
    return titles;
}

/// What a walk looks up.
inline std::map<std::string, std::string> titleMap(Direction direction) {
    const FontReplacer fonts;
    if (direction == Direction::toPlain)
        return fonts.allFontCharsToNormal();
    for (const FontReplacer::FontMap& map : fonts.allFontMaps()) {
        if (map.name == titleStyle) {
            auto all = map.letters;
            all.insert(map.digits->begin(), map.digits->end());
            return all;
        }
    }
    return {};
}

/// One benchmark for each direction and kind of title, named NAME/toStyle/latin and so on.
inline void registerTitles(const std::string& name, void (*run)(benchmark::State&, Direction, const char*)) {
    for (const auto& [direction, way] :
         {std::pair{Direction::toStyle, "toStyle"}, {Direction::toPlain, "toPlain"}})
        for (const char* kind : {"latin", "mixed", "emoji"})
            benchmark::RegisterBenchmark((name + '/' + way + '/' + kind).c_str(), run, direction, kind)
                ->Unit(benchmark::kMillisecond);
}

} // namespace tavrik::bench
