#pragma once

#include "app/MacHost.h"
#include "app/Managers.h"
#include "cli/Command.h"
#include "cli/TerminalAlerts.h"
#include "model/SupportFolderLock.h"
#include "platform/MainQueue.h"
#include "platform/Result.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace tavrik {

/// What a command may do to the user's files.
enum class Access {
    looking, ///< nothing is written, so that it may run beside anything and keeps nobody from writing
    reading, ///< the settings take notes of what is seen, unless another Tavrik is writing
    writing, ///< everything, and nobody else meanwhile
};

/// What the commands work with: the Mac, opened when the first command asks for it, the managers over it, and
/// the two outputs.
class Companion {
public:
    /// What the lock's next seeker reads of this program.
    static constexpr const char* kName = "tavrikctl";

    /// How the Mac is opened; the questions go to the one that is given.
    using Opener = Result<std::unique_ptr<MacHost>> (*)(Alerts&);

    explicit Companion(Opener openMac) : m_opener(openMac) {}

    Opener opener() const { return m_opener; }

    /// Opens the Mac and builds the managers. Anything but `done` is the code to end with, and its sentence is
    /// printed: `refused` when the command is to write and another Tavrik does, or the system is too new. The
    /// right to write is kept to the companion's end. To be called before the next three.
    [[nodiscard]] ExitCode open(Access access);

    Managers& managers() { return *m_managers; }

    MacHost& host() { return *m_host; }

    TerminalAlerts& alerts() { return m_alerts; }

    /// Runs a work on the main thread, where staged changes belong, and hands back its answer.
    template<typename Work>
    auto onMain(Work&& work) {
        using Answer = std::invoke_result_t<Work>;
        if constexpr (std::is_void_v<Answer>) {
            MainQueue::sync(std::forward<Work>(work));
        } else {
            std::optional<Answer> answer;
            MainQueue::sync([&] { answer.emplace(work()); });
            return std::move(*answer);
        }
    }

    /// An application of the catalogue that can be restyled, or the code to end with, its sentence printed.
    std::variant<ApplicationInfo, ExitCode> findRestylable(const std::string& bundleID);

    /// A line on standard output: what the person asked for.
    void say(std::string_view line) const;

    /// A sentence on standard error.
    void complain(std::string_view sentence) const;

    /// The same, and the code to end with.
    ExitCode fail(std::string_view sentence) const;
    ExitCode refuse(std::string_view sentence) const;

private:
    ExitCode takeLock(Access access);

    Opener m_opener;
    TerminalAlerts m_alerts;
    std::unique_ptr<MacHost> m_host;
    std::optional<SupportFolderLock> m_lock; ///< goes after the managers
    std::optional<Managers> m_managers;
};

} // namespace tavrik
