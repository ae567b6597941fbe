#include "remote/AnswerHeader.h"

#include "remote/StrictJson.h"

#include <string>

namespace tavrik {

RemoteResult<AnswerHeader> answerHeader(const QJsonObject& payload, RemoteKind kind, Date now) {
    const auto name = json::text(payload, "kind");
    const auto serial = json::number(payload, "serial");
    const auto issued = json::date(payload, "issued");
    const auto expires = json::date(payload, "expires");
    if (!name || !serial || *serial == 0 || !issued || !expires || *expires <= *issued)
        return RemoteProblem{RemoteFailure::notUnderstood, "it does not say what it is"};
    if (*name != nameOf(kind))
        return RemoteProblem{RemoteFailure::notTrusted, "it is meant for another service"};
    if (issued->sinceReference > now.sinceReference + kClockTolerance)
        return RemoteProblem{RemoteFailure::expired, "it was issued in the future, at " + isoText(*issued)};
    if (*expires <= now)
        return RemoteProblem{RemoteFailure::expired, "it expired at " + isoText(*expires)};
    return AnswerHeader{.kind = kind, .serial = *serial, .issued = *issued, .expires = *expires};
}

} // namespace tavrik
