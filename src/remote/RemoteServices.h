#pragma once

#include "platform/MainQueue.h"
#include "platform/SerialQueue.h"
#include "remote/InterfaceTexts.h"
#include "remote/NetworkConsent.h"
#include "remote/RemoteService.h"
#include "remote/UpdateCheck.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavrik {

class Clock;
class Machine;
class UserDefaults;

/// How the check for updates stands, for the window.
struct UpdateStatus {
    enum class Stage {
        unknown, ///< no check yet
        checking,
        found, ///< see `finding`
        failed,
    };

    Stage stage = Stage::unknown;
    bool isOffered = false; ///< there is a release for this system, neither skipped nor put off in this run
    UpdateFinding finding;
    std::optional<RemoteFailure> failure;

    bool operator==(const UpdateStatus&) const = default;
};

/// When a service was asked last, and what came of it.
struct ServiceReport {
    std::optional<Date> asked; ///< nothing before the first request
    std::optional<RemoteFailure> failure;
    bool isFetching = false;

    bool operator==(const ServiceReport&) const = default;
};

/// The network of the program, all of it. Off until the person has been asked; nothing is sent and no socket is
/// made before. Main thread; nothing blocks, since the user defaults are read and written on a queue of its
/// own. Requests under way end with it; what is being saved is waited for.
class RemoteServices {
public:
    struct Ports {
        UserDefaults& defaults;
        const Machine& machine;
        const Clock& clock;
    };

    struct Options {
        std::string version{};                               ///< of this program
        std::vector<TrustedKey> keys = trustedKeys();        ///< tests bring their own
        HttpOptions http{};                                  ///< likewise
        std::function<bool()> isBusy = [] { return false; }; ///< while it says so, nothing is sent unasked
    };

    RemoteServices(Ports ports, Options options);
    ~RemoteServices();
    RemoteServices(const RemoteServices&) = delete;
    RemoteServices& operator=(const RemoteServices&) = delete;

    /// Called after every change of what the functions below say. May be none.
    void setChanged(std::function<void()> changed);

    /// Counts the start, reads what was kept, and from then on asks what is due, now and each hour. Once, when
    /// the start is over and the window is idle.
    void startUp();

    /// Whether `startUp` has read everything: before, the choice is not known and nothing is sent. What a
    /// person wishes before waits until then.
    bool isReady() const { return m_isReady; }

    /// Sends what is due and allowed. The hourly timer calls it too.
    void fetchDue();

    /// The person's own wish, which needs no consent. Not when the network is switched off for good, which is
    /// told as a failure.
    void checkForUpdates();

    const NetworkChoice& choice() const { return m_choice; }

    /// Saves the person's choice, as an answer to the question and from the settings; marks the question as
    /// answered. What is no longer allowed is ended at once, and replaced texts give way to the built-in ones.
    void choose(bool wantsTexts, bool wantsUpdates);

    /// Switches the network off for good, or on again.
    void setOffForGood(bool isOff);

    /// False when the last choice could not be saved: it holds until the program ends.
    bool isChoiceSaved() const { return m_isChoiceSaved; }

    const InterfaceTexts& texts() const { return m_texts; }

    const UpdateStatus& updates() const { return m_updates; }

    ServiceReport report(RemoteKind kind) const;

    /// Never offers the release that `updates` shows, nor an older one. It is still what a check finds.
    void skipVersion();

    /// The person does not want the offered release now: it is not offered again before the next start. Or they
    /// do not wait for their check any longer, which ends it unless it is allowed without them.
    void dismissUpdate();

    /// Ends what is under way, and sends nothing unasked until the next start: what is kept is about to be
    /// deleted, and nothing is to be written behind that. Saves nothing itself.
    void fallSilent();

private:
    /// Runs `work` on the queue and hands its answer to `then` on the main thread, unless this is gone by then.
    template<typename Work, typename Then>
    void onQueue(Work work, Then then) {
        m_queue.async(
            [context = QPointer<QObject>(&m_context), work = std::move(work), then = std::move(then)] {
                MainQueue::async(context, [answer = work(), then] { then(answer); });
            });
    }

    void ready();
    void fetchUpdates();
    void apply(const NetworkChoice& choice, std::function<bool(NetworkConsent&)> save);
    void showTexts();
    void showUpdates();
    void showKnownUpdates();
    void failUpdates(RemoteFailure failure);
    void stopWaiting();
    void changed();

    Ports m_ports;
    Options m_options;
    std::function<void()> m_changed;
    std::vector<std::function<void()>> m_whenReady;
    bool m_isStarted = false;
    bool m_isReady = false;
    bool m_isChoiceSaved = true;
    NetworkChoice m_choice;
    std::optional<ProgramVersion> m_skipped;
    std::optional<ProgramVersion> m_putOff; ///< for this run
    InterfaceTexts m_texts;
    UpdateStatus m_updates;
    bool m_isAsked = false; ///< a person waits for what a check finds
    QTimer m_hourly;
    QObject m_context;
    SerialQueue m_queue{"com.tavrik.remote"};
    RemoteService m_textService;
    RemoteService m_updateService;
};

} // namespace tavrik
