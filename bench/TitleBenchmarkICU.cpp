#include "bench/Titles.h"

#include <unicode/brkiter.h>
#include <unicode/utext.h>

#include <memory>
#include <string_view>
#include <unordered_map>

namespace tavrik::bench {
namespace {

/// A walk over the characters that ICU finds in the UTF-8 as it stands, with a look-up for each.
void byICU(benchmark::State& state, Direction direction, const char* kind) {
    const std::string titles = titlesToWalk(direction, kind);
    const auto map = titleMap(direction);
    const std::unordered_map<std::string_view, std::string_view> written(map.begin(), map.end());
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getEnglish(), status));
    const auto walk = [&] {
        UText* text = utext_openUTF8(nullptr, titles.data(), static_cast<std::int64_t>(titles.size()), &status);
        iterator->setText(text, status);
        std::string result;
        result.reserve(4 * titles.size());
        const std::string_view all = titles;
        std::size_t start = 0;
        for (std::int32_t end = iterator->next(); end != icu::BreakIterator::DONE; end = iterator->next()) {
            const std::string_view character = all.substr(start, static_cast<std::size_t>(end) - start);
            const auto found = written.find(character);
            result += found == written.end() ? character : found->second;
            start = static_cast<std::size_t>(end);
        }
        utext_close(text);
        return result;
    };
    if (walk() != walkedByUs(direction, titles) || U_FAILURE(status) != 0)
        state.SkipWithError("the walks differ");
    for (auto _ : state)
        benchmark::DoNotOptimize(walk());
}

[[maybe_unused]] const bool registered = (registerTitles("titlesByICU", byICU), true);

} // namespace
} // namespace tavrik::bench
