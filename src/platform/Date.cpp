#include "platform/Date.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace tavrik {

namespace {

constexpr double kEarliestText = -62135596800.0; // 0001-01-01T00:00:00Z, seconds since 1970
constexpr double kLatestText = 253402300799.0;   // 9999-12-31T23:59:59Z

} // namespace

Date dateFromUnix(double seconds) {
    return {seconds - kReferenceSinceUnixEpoch};
}

double toUnix(Date date) {
    return date.sinceReference + kReferenceSinceUnixEpoch;
}

std::string isoText(Date date) {
    const double moment = std::isnan(date.sinceReference) ? kEarliestText : toUnix(date);
    const double seconds = std::clamp(std::floor(moment), kEarliestText, kLatestText);
    const std::chrono::sys_seconds time{std::chrono::seconds(static_cast<std::int64_t>(seconds))};
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day calendar{day};
    const std::chrono::hh_mm_ss clock{time - day};
    std::array<char, 32> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
                      static_cast<int>(calendar.year()), static_cast<unsigned>(calendar.month()),
                      static_cast<unsigned>(calendar.day()), static_cast<int>(clock.hours().count()),
                      static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace tavrik
