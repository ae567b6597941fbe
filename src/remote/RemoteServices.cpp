#include "remote/RemoteServices.h"

#include "platform/Log.h"
#include "platform/Machine.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"

#include <QPointer>

#include <chrono>
#include <string_view>
#include <utility>

namespace tavrik {

namespace {

constexpr std::string_view kSkippedKey = "SkippedVersion";
constexpr std::chrono::hours kInterval{1};

bool isTextsPayload(const QJsonObject& payload) {
    return payload.value(QLatin1String("texts")).isObject() && payload.value(QLatin1String("links")).isObject();
}

std::optional<ProgramVersion> skippedVersion(const UserDefaults& defaults) {
    const auto kept = defaults.value(kSkippedKey);
    const auto* const text = kept ? kept->as<std::string>() : nullptr;
    return text ? programVersion(*text) : std::nullopt;
}

} // namespace

RemoteServices::RemoteServices(Ports ports, Options options)
    : m_ports(ports),
      m_options(std::move(options)),
      m_textService(RemoteKind::texts, {.defaults = m_ports.defaults,
                                        .clock = m_ports.clock,
                                        .queue = m_queue,
                                        .keys = m_options.keys,
                                        .http = m_options.http,
                                        .isUnderstood = isTextsPayload}),
      m_updateService(RemoteKind::updates, {.defaults = m_ports.defaults,
                                            .clock = m_ports.clock,
                                            .queue = m_queue,
                                            .keys = m_options.keys,
                                            .http = m_options.http,
                                            .isUnderstood = [](const QJsonObject& payload) {
                                                return updateFeed(payload).has_value();
                                            }}) {
    m_hourly.setInterval(kInterval);
    QObject::connect(&m_hourly, &QTimer::timeout, &m_context, [this] { fetchDue(); });
}

RemoteServices::~RemoteServices() = default;

void RemoteServices::setChanged(std::function<void()> changed) {
    m_changed = std::move(changed);
}

void RemoteServices::startUp() {
    if (std::exchange(m_isStarted, true))
        return;
    onQueue([&defaults = m_ports.defaults] { return NetworkConsent(defaults).countStart(); },
            [this](const NetworkChoice& choice) { m_choice = choice; });
    onQueue([&defaults = m_ports.defaults] { return skippedVersion(defaults); },
            [this](const std::optional<ProgramVersion>& skipped) { m_skipped = skipped; });
    m_textService.load([] {});
    m_updateService.load([this] { ready(); });
}

void RemoteServices::ready() {
    m_isReady = true;
    for (const auto& wish : std::exchange(m_whenReady, {}))
        wish();
    showTexts();
    if (m_isAsked)
        checkForUpdates();
    showKnownUpdates();
    m_hourly.start();
    fetchDue();
    changed();
}

void RemoteServices::fetchDue() {
    if (!m_isReady || m_options.isBusy())
        return;
    if (m_choice.allows(RemoteKind::texts) && m_textService.isDue()) {
        m_textService.fetch([this] {
            showTexts();
            changed();
        });
    }
    if (m_choice.allows(RemoteKind::updates) && m_updateService.isDue())
        fetchUpdates();
}

void RemoteServices::checkForUpdates() {
    m_isAsked = true;
    m_updates = {};
    m_updates.stage = UpdateStatus::Stage::checking;
    if (m_choice.isOffForGood)
        failUpdates(RemoteFailure::switchedOff);
    else if (m_isReady)
        fetchUpdates();
    changed();
}

void RemoteServices::failUpdates(RemoteFailure failure) {
    m_isAsked = false;
    m_updates = {};
    m_updates.stage = UpdateStatus::Stage::failed;
    m_updates.failure = failure;
}

void RemoteServices::fetchUpdates() {
    m_updateService.fetch([this] {
        showUpdates();
        changed();
    });
}

void RemoteServices::choose(bool wantsTexts, bool wantsUpdates) {
    if (!m_isReady) {
        m_whenReady.emplace_back([=, this] { choose(wantsTexts, wantsUpdates); });
        return;
    }
    NetworkChoice choice = m_choice;
    choice.isAsked = true;
    choice.wantsTexts = wantsTexts;
    choice.wantsUpdates = wantsUpdates;
    apply(choice, [choice](NetworkConsent& consent) { return consent.write(choice); });
}

void RemoteServices::setOffForGood(bool isOff) {
    if (!m_isReady) {
        m_whenReady.emplace_back([=, this] { setOffForGood(isOff); });
        return;
    }
    NetworkChoice choice = m_choice;
    choice.isOffForGood = isOff;
    apply(choice, [isOff](NetworkConsent& consent) { return consent.writeOffForGood(isOff); });
}

/// Lets the choice hold at once, and saves it.
void RemoteServices::apply(const NetworkChoice& choice, std::function<bool(NetworkConsent&)> save) {
    m_choice = choice;
    onQueue(
        [&defaults = m_ports.defaults, save = std::move(save)] {
            NetworkConsent consent(defaults);
            return save(consent);
        },
        [this](bool isSaved) {
            m_isChoiceSaved = isSaved;
            changed();
        });
    if (!m_choice.allows(RemoteKind::texts))
        m_textService.abort();
    const bool isChecking = m_updates.stage == UpdateStatus::Stage::checking;
    if (m_choice.isOffForGood || (!m_choice.allows(RemoteKind::updates) && !isChecking)) {
        m_updateService.abort();
        if (isChecking)
            failUpdates(RemoteFailure::switchedOff);
    }
    showTexts();
    showKnownUpdates();
    fetchDue();
    changed();
}

void RemoteServices::showTexts() {
    const TrustedAnswer* const answer = m_textService.answer();
    m_texts = answer && m_choice.allows(RemoteKind::texts) ? InterfaceTexts(answer->payload) : InterfaceTexts();
}

/// What the last answer has for this version and this system. A failure is told to whoever asked; else what is
/// known stays.
void RemoteServices::showUpdates() {
    const bool isAsked = std::exchange(m_isAsked, false);
    const TrustedAnswer* const answer = m_updateService.answer();
    const auto current = programVersion(m_options.version);
    const auto& failure = m_updateService.failure();
    if (!answer || !current || (isAsked && failure)) {
        failUpdates(failure.value_or(RemoteFailure::notUnderstood));
        return;
    }
    m_updates = {};
    m_updates.stage = UpdateStatus::Stage::found;
    m_updates.finding = findUpdate(updateFeed(answer->payload).value_or(std::vector<Release>()), *current,
                                   m_ports.machine.systemVersion());
    const auto isAbove = [&finding = m_updates.finding](const std::optional<ProgramVersion>& version) {
        return !version || finding.release->version > *version;
    };
    m_updates.isOffered =
        m_updates.finding.verdict == UpdateVerdict::available && isAbove(m_skipped) && isAbove(m_putOff);
}

/// What an earlier request was answered, where nothing newer is shown or waited for.
void RemoteServices::showKnownUpdates() {
    if (m_updates.stage == UpdateStatus::Stage::unknown && m_choice.allows(RemoteKind::updates) &&
        m_updateService.answer())
        showUpdates();
}

ServiceReport RemoteServices::report(RemoteKind kind) const {
    const RemoteService& service = kind == RemoteKind::texts ? m_textService : m_updateService;
    const FetchHistory& history = service.history();
    return {.asked = history.failed ? history.failed : history.answered,
            .failure = service.failure(),
            .isFetching = service.isFetching()};
}

void RemoteServices::skipVersion() {
    const auto& release = m_updates.finding.release;
    if (!release)
        return;
    m_skipped = release->version;
    onQueue([&defaults = m_ports.defaults,
             version = textOf(release->version)] { return defaults.set(kSkippedKey, version); },
            [](const Status& saved) {
                if (!saved)
                    log("Failed to save " + std::string(kSkippedKey) + ": " + saved.error().description);
            });
    dismissUpdate();
}

void RemoteServices::dismissUpdate() {
    if (m_updates.stage == UpdateStatus::Stage::checking)
        stopWaiting();
    else if (std::exchange(m_updates.isOffered, false))
        m_putOff = m_updates.finding.release->version;
    changed();
}

/// Back to what was known before the person asked.
void RemoteServices::stopWaiting() {
    m_isAsked = false;
    m_updates = {};
    if (!m_choice.allows(RemoteKind::updates))
        m_updateService.abort();
    if (m_updateService.answer())
        showUpdates();
}

void RemoteServices::fallSilent() {
    m_choice.isAsked = true;
    m_choice.wantsTexts = false;
    m_choice.wantsUpdates = false;
    m_textService.abort();
    m_updateService.abort();
    if (m_updates.stage == UpdateStatus::Stage::checking)
        m_updates = {};
    showTexts();
    changed();
}

void RemoteServices::changed() {
    if (m_changed)
        m_changed();
}

} // namespace tavrik
