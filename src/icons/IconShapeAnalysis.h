#pragma once

#include "platform/Path.h"
#include "platform/SerialQueue.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

class IconManager;
class SettingsManager;

/// Finds out which applications' own icons have the standard outline, and remembers it in the settings under a
/// key made of the icon's data, so that an icon is decoded once and a changed one again.
///
/// Belongs to the main thread. Decoding runs on `analysisQueue`, spread over the cores; what a run finds is
/// stored in one write of the settings.
class IconShapeAnalysis {
public:
    IconShapeAnalysis(const IconManager& icons, SettingsManager& settings);
    /// Stops after the icons under way, stores what was found, and drops the completions.
    ~IconShapeAnalysis();

    /// What is known of an application's own icon; nothing before a run has looked at it. From memory.
    std::optional<bool> isSquircle(const MacPath& app) const;

    /// Looks at the icons of these applications; those that are remembered are not decoded. Returns at once. A
    /// run that is under way is finished first, and its applications are not looked at twice.
    /// `progressed` hears how far it has got, from 0 to 1, some 50 times at most; `finished` comes last. Both
    /// run on the main queue and are dropped when `context`, alive during the call, is gone.
    void analyse(const std::vector<MacPath>& apps, QObject* context, std::function<void(double)> progressed,
                 std::function<void()> finished);

    /// Whether a run is under way.
    bool isAnalysing() const { return m_runs > 0; }

private:
    struct Answer;
    /// On the analysis queue; one for each application, without an answer for those that a stop left out.
    std::vector<Answer> look(const std::vector<MacPath>& apps, const std::function<void(double)>& progressed);
    Answer look(const MacPath& app) const;
    void remember(const std::vector<Answer>& answers);

    const IconManager& m_icons;
    SettingsManager& m_settings;
    std::map<MacPath, bool> m_known;
    std::map<std::string, bool> m_found; ///< by key, whether the settings took it or not; the queue's
    int m_runs = 0;
    std::atomic<bool> m_isStopping = false;
    QObject m_mainThread;
    SerialQueue m_analysisQueue{"com.tavrik.iconAnalysis"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
