#include "remote/AnswerCache.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "remote/HttpAnswerReader.h"

#include <algorithm>

namespace tavrik {

namespace {

constexpr std::string_view kETag = "ETag";
constexpr std::string_view kAddress = "Address";
constexpr std::string_view kFailed = "Failed";
constexpr std::string_view kFailures = "Failures";
constexpr std::string_view kFailure = "Failure";
constexpr std::int64_t kMostFailures = 100;

/// "UIStringsCache", "UIStringsCacheDate" and so on.
std::string keyOf(RemoteKind kind, std::string_view what) {
    return (kind == RemoteKind::texts ? "UIStrings" : "UpdateFeed") + std::string(what);
}

template<typename T>
std::optional<T> valueOf(const UserDefaults& defaults, const std::string& key) {
    auto value = defaults.value(key);
    auto* const content = value ? value->template as<T>() : nullptr;
    return content ? std::optional(std::move(*content)) : std::nullopt;
}

plist::Dictionary stateOf(const CachedAnswer& answer) {
    plist::Dictionary state;
    if (!answer.etag.empty()) {
        state.emplace(kETag, answer.etag);
        state.emplace(kAddress, answer.address);
    }
    if (answer.history.failed) {
        state.emplace(kFailed, *answer.history.failed);
        state.emplace(kFailures, answer.history.failures);
    }
    if (answer.failure)
        state.emplace(kFailure, nameOf(*answer.failure));
    return state;
}

void readState(const plist::Value& state, CachedAnswer& answer) {
    const auto* const etag = state.find<std::string>(kETag);
    const auto* const address = state.find<std::string>(kAddress);
    if (etag && address && isEntityTag(*etag)) {
        answer.etag = *etag;
        answer.address = *address;
    }
    const auto* const failed = state.find<Date>(kFailed);
    const auto* const failures = state.find<std::int64_t>(kFailures);
    if (failed && failures) {
        answer.history.failed = *failed;
        answer.history.failures = static_cast<int>(std::clamp<std::int64_t>(*failures, 0, kMostFailures));
    }
    if (const auto* const failure = state.find<std::string>(kFailure))
        answer.failure = remoteFailureNamed(*failure);
}

} // namespace

AnswerCache::AnswerCache(RemoteKind kind, UserDefaults& defaults) : m_kind(kind), m_defaults(defaults) {}

CachedAnswer AnswerCache::read() const {
    CachedAnswer answer;
    if (auto bytes = valueOf<Bytes>(m_defaults, keyOf(m_kind, "Cache")))
        answer.bytes = std::move(*bytes);
    if (const auto state = m_defaults.value(keyOf(m_kind, "CacheState")))
        readState(*state, answer);
    answer.history.answered = valueOf<Date>(m_defaults, keyOf(m_kind, "CacheDate"));
    for (const auto& [key, serial] :
         valueOf<plist::Dictionary>(m_defaults, keyOf(m_kind, "Serials")).value_or(plist::Dictionary())) {
        if (const auto* const number = serial.as<std::int64_t>(); number && *number > 0)
            answer.serials.emplace(key, static_cast<std::uint64_t>(*number));
    }
    return answer;
}

bool AnswerCache::write(const CachedAnswer& answer) {
    const auto save = [this](std::string_view what, std::optional<plist::Value> value) {
        const std::string key = keyOf(m_kind, what);
        if (m_defaults.value(key) == value)
            return true;
        const Status saved = m_defaults.set(key, std::move(value));
        if (!saved)
            log("Failed to save " + key + ": " + saved.error().description);
        return bool(saved);
    };
    plist::Dictionary serials;
    for (const auto& [key, serial] : answer.serials)
        serials.emplace(key, static_cast<std::int64_t>(serial));
    const auto date = answer.history.answered;
    return save("Serials", std::move(serials)) &&
           save("Cache", answer.bytes.empty() ? std::nullopt : std::optional<plist::Value>(answer.bytes)) &&
           save("CacheState", stateOf(answer)) &&
           save("CacheDate", date ? std::optional<plist::Value>(*date) : std::nullopt);
}

} // namespace tavrik
