#include "icons/list/FilterSettingsManager.h"

#include "platform/NotificationCenter.h"
#include "platform/Threads.h"

#include <algorithm>

namespace tavrik {

template<typename Value>
void FilterSettingsManager::set(Value& field, const Value& value) {
    assertOnMainThread("Changing the filters");
    if (field == value)
        return;
    field = value;
    m_notifications.post(kFilterSettingsUpdated);
}

void FilterSettingsManager::setFilterOption(FilterOption option) {
    set(m_filter.filterOption, option);
}

void FilterSettingsManager::setShowOnlyDockItems(bool shows) {
    set(m_filter.showOnlyDockItems, shows);
}

void FilterSettingsManager::setShowOnlyNonSquircle(bool shows) {
    set(m_filter.showOnlyNonSquircle, shows);
}

void FilterSettingsManager::setShowUnsupportedApps(bool shows) {
    set(m_filter.showUnsupportedApps, shows);
}

void FilterSettingsManager::setSearchText(const std::string& text) {
    set(m_filter.searchText, text);
}

int FilterSettingsManager::beginIconAnalysis(std::size_t icons) {
    assertOnMainThread("Analysing icons");
    if (!m_isIconAnalysisInProgress)
        m_analyses.clear();
    const int run = static_cast<int>(m_analyses.size());
    m_analyses.push_back({.icons = icons});
    updateIconAnalysis(); // whoever hears of it may begin another
    return run;
}

void FilterSettingsManager::advanceIconAnalysis(int run, double progress) {
    m_analyses.at(static_cast<std::size_t>(run)).progress = std::clamp(progress, 0.0, 1.0);
    updateIconAnalysis();
}

void FilterSettingsManager::endIconAnalysis(int run) {
    Analysis& ended = m_analyses.at(static_cast<std::size_t>(run));
    ended.progress = 1;
    ended.isOver = true;
    updateIconAnalysis();
}

void FilterSettingsManager::updateIconAnalysis() {
    double looked = 0;
    double all = 0;
    for (const Analysis& run : m_analyses) {
        looked += run.progress * static_cast<double>(run.icons);
        all += static_cast<double>(run.icons);
    }
    m_isIconAnalysisInProgress = !std::ranges::all_of(m_analyses, &Analysis::isOver);
    m_analysisProgress = all > 0 ? looked / all : 1;
    m_notifications.post(kFilterSettingsUpdated);
}

} // namespace tavrik
