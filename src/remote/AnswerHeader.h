#pragma once

#include "platform/Date.h"
#include "remote/RemoteKind.h"
#include "remote/RemoteProblem.h"

#include <QJsonObject>

#include <cstdint>

namespace tavrik {

/// What every signed payload says of itself: "kind", so that an update feed cannot pass for texts; "serial",
/// which grows with every publication; "issued" and "expires".
struct AnswerHeader {
    RemoteKind kind = RemoteKind::texts;
    std::uint64_t serial = 0; ///< from 1
    Date issued;
    Date expires;

    bool operator==(const AnswerHeader&) const = default;
};

/// How far a clock may lag behind the one of whoever signs, in seconds.
inline constexpr double kClockTolerance = 24 * 60 * 60;

/// The header of a payload for this service that is in force now.
RemoteResult<AnswerHeader> answerHeader(const QJsonObject& payload, RemoteKind kind, Date now);

} // namespace tavrik
