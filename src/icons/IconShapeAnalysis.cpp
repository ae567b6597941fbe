#include "icons/IconShapeAnalysis.h"

#include "icons/ShapeCacheKey.h"
#include "icons/SquircleTest.h"
#include "model/SettingsManager.h"
#include "platform/MainQueue.h"
#include "platform/OnAllCores.h"
#include "platform/Threads.h"
#include "system/IconManager.h"

#include <QPointer>

#include <cerrno>
#include <cstddef>
#include <mutex>
#include <utility>

namespace tavrik {

namespace {

/// Counts what is done, on several threads, and tells when a further part of the whole is.
class Progress {
public:
    Progress(std::size_t total, const std::function<void(double)>& tell) : m_total(total), m_tell(tell) {}

    void step() {
        constexpr std::size_t parts = 50;
        const std::lock_guard lock(m_mutex); // held while telling, so that the figures come in order
        const std::size_t before = m_done++;
        if (before * parts / m_total != m_done * parts / m_total)
            m_tell(double(m_done) / double(m_total));
    }

private:
    const std::size_t m_total;
    const std::function<void(double)>& m_tell;
    std::mutex m_mutex;
    std::size_t m_done = 0;
};

} // namespace

struct IconShapeAnalysis::Answer {
    std::string key;
    std::optional<bool> isSquircle;
    bool isStored = false; ///< in the settings
};

IconShapeAnalysis::IconShapeAnalysis(const IconManager& icons, SettingsManager& settings)
    : m_icons(icons),
      m_settings(settings) {}

IconShapeAnalysis::~IconShapeAnalysis() {
    m_isStopping = true;
}

std::optional<bool> IconShapeAnalysis::isSquircle(const MacPath& app) const {
    const auto known = m_known.find(app);
    return known == m_known.end() ? std::nullopt : std::optional(known->second);
}

void IconShapeAnalysis::analyse(const std::vector<MacPath>& apps, QObject* context,
                                std::function<void(double)> progressed, std::function<void()> finished) {
    assertOnMainThread("the analysis of icons");
    ++m_runs;
    m_analysisQueue.async([this, apps, progressed = std::move(progressed), finished = std::move(finished),
                           asker = QPointer(context), self = QPointer(&m_mainThread)] {
        const auto tell = [&](double part) {
            MainQueue::async(self, [asker, progressed, part] {
                if (asker && progressed)
                    progressed(part);
            });
        };
        const std::vector<Answer> answers = look(apps, tell);
        remember(answers);
        std::map<MacPath, bool> found;
        for (std::size_t i = 0; i < apps.size(); ++i) {
            if (answers[i].isSquircle)
                found[apps[i]] = *answers[i].isSquircle;
        }
        MainQueue::async(self, [this, found = std::move(found), asker, finished]() mutable {
            found.merge(m_known); // what was known of the others
            m_known = std::move(found);
            --m_runs;
            if (asker && finished)
                finished();
        });
    });
}

std::vector<IconShapeAnalysis::Answer> IconShapeAnalysis::look(const std::vector<MacPath>& apps,
                                                               const std::function<void(double)>& progressed) {
    std::vector<Answer> answers(apps.size());
    Progress progress(apps.size(), progressed);
    ignoreFailure(onAllCores(apps.size(), [&](std::size_t number) -> Status {
        if (m_isStopping)
            return Error{"stopped", ECANCELED};
        answers[number] = look(apps[number]);
        progress.step();
        return Done{};
    }));
    return answers;
}

IconShapeAnalysis::Answer IconShapeAnalysis::look(const MacPath& app) const {
    const IconManager::IconData data = m_icons.appIconData(app, kShapeCacheKeyBytes);
    const std::string key = shapeCacheKey(data.byteCount, data.beginning);
    const auto stored = m_settings.getIconShape(key);
    if (const bool* answer = stored ? stored->as<bool>() : nullptr)
        return {key, *answer, true};
    if (const auto found = m_found.find(key); found != m_found.end())
        return {key, found->second};
    return {key, tavrik::isSquircle(m_icons.appIcon(app, kSquircleTestSide))};
}

void IconShapeAnalysis::remember(const std::vector<Answer>& answers) {
    std::map<std::string, plist::Value> unsaved;
    for (const Answer& answer : answers) {
        if (!answer.isSquircle || answer.isStored)
            continue;
        m_found[answer.key] = *answer.isSquircle;
        unsaved[answer.key] = *answer.isSquircle;
    }
    m_settings.setIconShapes(unsaved);
}

} // namespace tavrik
