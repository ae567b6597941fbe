#include "remote/NetworkConsent.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"

#include <algorithm>
#include <string>

namespace tavrik {

namespace {

constexpr std::string_view kStarts = "NetworkStarts";
constexpr std::string_view kAsked = "NetworkAsked";
constexpr std::string_view kTexts = "UIStringsEnabled";
constexpr std::string_view kUpdates = "UpdateCheckEnabled";
constexpr int kAskedAtStart = 2;

bool save(UserDefaults& defaults, std::string_view key, plist::Value value) {
    if (defaults.value(key) == value)
        return true;
    const Status saved = defaults.set(key, std::move(value));
    if (!saved)
        log("Failed to save " + std::string(key) + ": " + saved.error().description);
    return bool(saved);
}

} // namespace

bool NetworkChoice::allows(RemoteKind kind) const {
    return isAsked && !isOffForGood && (kind == RemoteKind::texts ? wantsTexts : wantsUpdates);
}

bool NetworkChoice::isQuestionDue() const {
    return starts >= kAskedAtStart && !isAsked && !isOffForGood;
}

NetworkConsent::NetworkConsent(UserDefaults& defaults) : m_defaults(defaults) {}

NetworkChoice NetworkConsent::read() const {
    const auto isSet = [this](std::string_view key) { return m_defaults.value(key) == plist::Value(true); };
    const auto starts = m_defaults.value(kStarts);
    const auto* const counted = starts ? starts->as<std::int64_t>() : nullptr;
    const auto disabled = m_defaults.value(kNetworkDisabledKey);
    return {.starts = counted ? static_cast<int>(std::clamp<std::int64_t>(*counted, 0, kAskedAtStart)) : 0,
            .isAsked = isSet(kAsked),
            .wantsTexts = isSet(kTexts),
            .wantsUpdates = isSet(kUpdates),
            .isOffForGood = disabled && *disabled != plist::Value(false)};
}

NetworkChoice NetworkConsent::countStart() {
    NetworkChoice choice = read();
    if (choice.starts < kAskedAtStart && save(m_defaults, kStarts, choice.starts + 1))
        ++choice.starts;
    return choice;
}

bool NetworkConsent::write(const NetworkChoice& choice) {
    // The answer to the question comes last: a kill in between allows nothing.
    return save(m_defaults, kTexts, choice.wantsTexts) && save(m_defaults, kUpdates, choice.wantsUpdates) &&
           save(m_defaults, kAsked, choice.isAsked);
}

bool NetworkConsent::writeOffForGood(bool isOff) {
    return save(m_defaults, kNetworkDisabledKey, isOff);
}

} // namespace tavrik
