#pragma once

#include <chrono>
#include <compare>
#include <string>

namespace tavrik {

/// A moment, in seconds since 2001-01-01 00:00 UTC, the Mac's reference date.
struct Date {
    double sinceReference = 0;

    auto operator<=>(const Date&) const = default;
};

/// Seconds from 1970-01-01 to 2001-01-01, both 00:00 UTC.
inline constexpr double kReferenceSinceUnixEpoch = 978307200.0;

Date dateFromUnix(double seconds);
double toUnix(Date date);

/// "2026-03-01T12:34:56Z", whole seconds, rounded down.
/// Moments outside the years 1 to 9999 are shown as the nearest one inside.
std::string isoText(Date date);

} // namespace tavrik
