#pragma once

#include "platform/Machine.h"
#include "remote/ProgramVersion.h"

#include <QJsonObject>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

/// One version of the program that can be had.
struct Release {
    ProgramVersion version;
    std::optional<SystemVersion> minimumSystem;
    std::optional<SystemVersion> maximumSystem; ///< "15" stands for all of 15
    std::string notes;                          ///< plain text
    std::uint64_t size = 0;                     ///< of the download, in bytes
    std::string link;                           ///< https, to an allowed host

    bool operator==(const Release&) const = default;
};

/// The releases of a payload that was verified, below "releases". Nothing when a single one is not as it should
/// be: half a feed could hide the release that matters.
std::optional<std::vector<Release>> updateFeed(const QJsonObject& payload);

} // namespace tavrik
