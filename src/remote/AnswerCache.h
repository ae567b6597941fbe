#pragma once

#include "platform/Bytes.h"
#include "remote/FetchSchedule.h"
#include "remote/RemoteKind.h"
#include "remote/RemoteProblem.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace tavrik {

class UserDefaults;

/// The highest serial that was seen of each key. An answer that is older than that is somebody's recording.
using SeenSerials = std::map<std::string, std::uint64_t, std::less<>>;

/// What is kept of one service between two starts.
struct CachedAnswer {
    Bytes bytes;         ///< whole, with its signature, since it is verified again; empty when there is none
    std::string etag;    ///< what the server calls this answer
    std::string address; ///< of the server that does
    FetchHistory history;
    std::optional<RemoteFailure> failure; ///< of the last request
    SeenSerials serials;                  ///< kept even where the rest is lost

    bool operator==(const CachedAnswer&) const = default;
};

/// Keeps the answers in the user defaults: for the texts "UIStringsCache" and "UIStringsCacheDate", for the
/// updates "UpdateFeedCache" and "UpdateFeedCacheDate", and beside each its state and serials. What it reads it
/// does not trust. Blocks: background only.
class AnswerCache {
public:
    AnswerCache(RemoteKind kind, UserDefaults& defaults);

    /// What is missing or of another type is as if there were none.
    CachedAnswer read() const;

    /// The answer is written before its ETag and its date, so that a kill in between leads to one request more,
    /// never to an ETag of an answer that is not there. False, with a log line, when something could not be
    /// written.
    [[nodiscard]] bool write(const CachedAnswer& answer);

private:
    RemoteKind m_kind;
    UserDefaults& m_defaults;
};

} // namespace tavrik
