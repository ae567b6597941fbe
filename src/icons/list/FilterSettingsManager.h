#pragma once

#include "icons/list/ListFilter.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class NotificationCenter;

/// Posted, on the main thread, when one of the values below has changed.
inline constexpr std::string_view kFilterSettingsUpdated = "FilterSettingsUpdated";

/// The state of the filters, shared by the filter popover and the lists. Lives as long as the process. Main
/// thread only.
class FilterSettingsManager {
public:
    explicit FilterSettingsManager(NotificationCenter& notifications) : m_notifications(notifications) {}

    const ListFilter& filter() const { return m_filter; }

    bool isIconAnalysisInProgress() const { return m_isIconAnalysisInProgress; }

    double analysisProgress() const { return m_analysisProgress; } ///< from 0 to 1

    void setFilterOption(FilterOption option);
    void setShowOnlyDockItems(bool shows);
    void setShowOnlyNonSquircle(bool shows);
    void setShowUnsupportedApps(bool shows);
    void setSearchText(const std::string& text);

    /// The lists look at their icons in runs of their own. Those that overlap count together, each by its
    /// number of icons. Begins one; the answer names it in the calls below, the last of which ends it.
    int beginIconAnalysis(std::size_t icons);
    void advanceIconAnalysis(int run, double progress); ///< from 0 to 1
    void endIconAnalysis(int run);

private:
    struct Analysis {
        std::size_t icons = 0;
        double progress = 0;
        bool isOver = false;
    };

    template<typename Value>
    void set(Value& field, const Value& value);
    void updateIconAnalysis();

    NotificationCenter& m_notifications;
    ListFilter m_filter;
    std::vector<Analysis> m_analyses; ///< of which one at least is under way, or the last ones
    bool m_isIconAnalysisInProgress = false;
    double m_analysisProgress = 0;
};

} // namespace tavrik
