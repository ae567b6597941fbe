#include "platform/practice/Layout.h"
#include "practice/dock/Dock.h"
#include "practice/process/ProcessRecord.h"
#include "practice/process/ProgramPlace.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <iostream>
#include <optional>

namespace {

using namespace tavrik::practice;
using SteadyClock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kRetryDelay{1'000};

/// What the standard input, the lifeline that the session's keeper holds, said.
enum class Word {
    none, ///< nothing within the time
    quit, ///< a byte: quit politely
    end,  ///< the keeper is gone: the Mac was switched off
};

Word listen(std::optional<SteadyClock::time_point> until) {
    while (true) {
        int limit = -1;
        if (until) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(*until - SteadyClock::now()).count();
            limit = static_cast<int>(std::clamp<decltype(left)>(left, 0, 3'600'000));
        }
        pollfd lifeline{STDIN_FILENO, POLLIN, 0};
        const int ready = ::poll(&lifeline, 1, limit);
        if (ready == 0 && until && SteadyClock::now() >= *until)
            return Word::none;
        if (ready < 0 && errno != EINTR)
            return Word::end;
        if (ready <= 0)
            continue;
        char byte = 0;
        const ssize_t count = ::read(STDIN_FILENO, &byte, 1);
        if (count < 0 && errno == EINTR)
            continue;
        return count == 1 ? Word::quit : Word::end;
    }
}

} // namespace

/// The Dock of a practice Mac. It is killed by SIGTERM and SIGHUP like the Mac's own, without saving anything.
int main(int count, char** arguments) {
    const auto root = volumeOfProgram(count > 0 ? arguments[0] : "", tavrik::practice::kDockProgram);
    if (!root) {
        std::cerr << "Dock: started from outside a practice Mac\n";
        return 1;
    }
    const auto started = SteadyClock::now();
    Dock dock(*root);
    const auto record = ProcessRecord::claim(*root, kDockProgram.name());
    if (!record) {
        std::cerr << "Dock: cannot record the process\n";
        return 1;
    }

    const std::chrono::duration<double> delay(readDockBehaviour(*root).indexDelay);
    std::optional next = started + std::chrono::duration_cast<SteadyClock::duration>(delay);
    while (true) {
        switch (listen(next)) {
        case Word::none:
            if (dock.index())
                next.reset();
            else
                next = SteadyClock::now() + kRetryDelay;
            break;
        case Word::quit:
            dock.quit();
            return 0;
        case Word::end:
            return 0;
        }
    }
}
