#pragma once

#include "icons/list/ListFilter.h"

#include <string>
#include <string_view>

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
    void setIconAnalysis(bool isInProgress, double progress);

private:
    NotificationCenter& m_notifications;
    ListFilter m_filter;
    bool m_isIconAnalysisInProgress = false;
    double m_analysisProgress = 0;
};

} // namespace tavrik
