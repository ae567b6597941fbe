// An apply in virtual time, so that what is measured is its work and none of its waits. The system's tools run
// as real child processes; the Dock lives inside the program.
//   apply_work make FOLDER APPS TOOL      a practice Mac with so many applications and TOOL for its tools
//   apply_work stage FOLDER APPS PICTURE  an icon for each of them, staged and not applied
//   apply_work apply FOLDER               applies what is staged; prints a line of JSON with
//     wall, cpu, children: ms of the run, processor time of the program and of its children
//     waits, prescribed:   ms, the sum of the waits and what the steps prescribe
//     started:             children
//     peak:                KiB of memory that the program had at most

#include "app/Managers.h"
#include "bench/ManyApps.h"
#include "bench/PeakMemory.h"
#include "platform/Alerts.h"
#include "platform/Bytes.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Png.h"
#include "platform/RecordingClock.h"
#include "platform/practice/PracticeMac.h"
#include "practice/dock/Dock.h"
#include "practice/session/VirtualSession.h"

#include <QCoreApplication>

#include <sys/resource.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string_view>

namespace tavrik::bench {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

class CloseAll : public Alerts {
public:
    std::size_t ask(const Alert&) override { return 0; }
};

/// The program on a practice Mac in virtual time.
struct Stage {
    explicit Stage(const HostPath& root)
        : own(root),
          session(root, clock),
          practice(root, {&clock, &session, &alerts}) {
        session.setInterceptor([this](const MacPath& tool, const auto& arguments, const ToolLimits& limits) {
            ++children;
            const bool endsTheDock = tool.name() == "killall";
            return endsTheDock ? std::nullopt : std::optional(own.mac().tools.run(tool, arguments, limits));
        });
    }

    practice::PracticeMac own; ///< for its tools, which are children
    RecordingClock clock;
    CloseAll alerts;
    int children = 0;
    practice::VirtualSession session;
    practice::PracticeMac practice;
    Managers program{practice.mac()};
};

int stage(const HostPath& root, int apps, const char* picture) {
    Stage mac(root);
    std::ifstream stream(picture, std::ios::binary);
    const QImage icon = png::decode(Bytes(std::istreambuf_iterator<char>(stream), {}));
    std::map<std::string, MacPath> icons;
    for (const std::string& bundleID : manyApps(apps)) {
        if (const auto path = mac.program.iconStore.savePendingIcon(icon, bundleID))
            icons.emplace(bundleID, *path);
    }
    return mac.program.pendingChanges.addIcons(icons) == static_cast<std::size_t>(apps) ? 0 : 1;
}

milliseconds inMilliseconds(double seconds) {
    return milliseconds(std::llround(seconds * 1000));
}

/// What an apply has to wait that changes wrappers and no titles: before the wrappers, for the Dock twice when
/// it creates some, and before it tells of its end.
milliseconds prescribedWaits(const HostPath& root, bool creates) {
    constexpr milliseconds kRestart = 100ms + 100ms + 200ms;
    constexpr milliseconds kPoll = 1000ms;
    milliseconds sum = 500ms + kRestart + 500ms;
    if (creates) {
        const practice::DockBehaviour dock = practice::readDockBehaviour(root);
        const milliseconds indexed = inMilliseconds(dock.restartDelay) + inMilliseconds(dock.indexDelay);
        sum += kRestart + (indexed + kPoll - 1ms) / kPoll * kPoll;
    }
    return sum;
}

double processorTime(int who) {
    rusage usage{};
    getrusage(who, &usage);
    const auto ms = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

int apply(const HostPath& root) {
    Stage mac(root);
    mac.program.themes.open();
    if (!mac.program.pendingChanges.recover())
        return 1;
    const bool creates = mac.program.settings.getAllMappings().empty();
    mac.clock.forgetWaits();

    const double own = processorTime(RUSAGE_SELF);
    const double children = processorTime(RUSAGE_CHILDREN);
    const auto begin = std::chrono::steady_clock::now();
    const ApplyResult result = mac.program.apply.applyChanges();
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - begin;

    for (const auto& app : result.failedApps)
        std::fprintf(stderr, "%s: %s\n", app.bundleID.c_str(), app.reason.c_str());
    for (const Deviation& deviation : result.deviations)
        std::fprintf(stderr, "%s\n", deviation.sentence.c_str());
    if (result.end != ApplyResult::End::applied || !result.isAudited || !result.failedApps.empty() ||
        !result.deviations.empty())
        return 1;
    const auto waits = mac.clock.waits();
    const milliseconds waited = std::accumulate(waits.begin(), waits.end(), 0ms);
    std::printf("{\"wall\": %.1f, \"cpu\": %.1f, \"children\": %.1f, \"waits\": %lld, \"prescribed\": %lld, "
                "\"started\": %d, \"peak\": %ld}\n",
                wall.count(), processorTime(RUSAGE_SELF) - own, processorTime(RUSAGE_CHILDREN) - children,
                static_cast<long long>(waited.count()),
                static_cast<long long>(prescribedWaits(root, creates).count()), mac.children, peakMemory());
    return 0;
}

} // namespace
} // namespace tavrik::bench

int main(int count, char** arguments) {
    using namespace tavrik;
    QCoreApplication application(count, arguments);
    setLogStream(nullptr);
    const std::string_view action = count > 2 ? arguments[1] : "";
    const HostPath root(count > 2 ? arguments[2] : "");
    if (action == "make" && count == 5) {
        bench::furnishWithApps(root, std::atoi(arguments[3]), HostPath(arguments[4]));
        return 0;
    }
    if (action == "stage" && count == 5)
        return bench::stage(root, std::atoi(arguments[3]), arguments[4]);
    if (action == "apply" && count == 3)
        return bench::apply(root);
    return 2;
}
