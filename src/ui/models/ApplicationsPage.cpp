#include "ui/models/ApplicationsPage.h"

#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "icons/ImageIntake.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"

namespace tavrik {

ApplicationsPage::ApplicationsPage(const UiServices& with)
    : m_with(with),
      m_userApps(with.coordinators.userApps, with),
      m_systemApps(with.coordinators.systemApps, with) {
    // Whether the database could be read shows in both lists together.
    connect(&m_userApps, &ApplicationsList::shown, &m_systemApps, &ApplicationsList::changed);
    connect(&m_systemApps, &ApplicationsList::shown, &m_userApps, &ApplicationsList::changed);
    m_observation = with.managers.notificationCenter.observe(std::string(kFilterSettingsUpdated),
                                                             [this] { Q_EMIT filtersChanged(); });
}

QString ApplicationsPage::picturePatterns() const {
    QStringList patterns;
    for (const std::string_view extension : pictureExtensions())
        patterns.append(QStringLiteral("*.") + toQString(extension));
    return patterns.join(QLatin1Char(' '));
}

QString ApplicationsPage::searchText() const {
    return toQString(m_with.coordinators.filters.filter().searchText);
}

QStringList ApplicationsPage::filterOptions() const {
    QStringList labels;
    for (const FilterOption option :
         {FilterOption::allItems, FilterOption::themedItems, FilterOption::unthemedItems})
        labels.append(inTheirLanguage(labelOf(option)));
    return labels;
}

int ApplicationsPage::filterOption() const {
    return static_cast<int>(m_with.coordinators.filters.filter().filterOption);
}

bool ApplicationsPage::showOnlyDockItems() const {
    return m_with.coordinators.filters.filter().showOnlyDockItems;
}

bool ApplicationsPage::showOnlyNonSquircle() const {
    return m_with.coordinators.filters.filter().showOnlyNonSquircle;
}

bool ApplicationsPage::showUnsupportedApps() const {
    return m_with.coordinators.filters.filter().showUnsupportedApps;
}

bool ApplicationsPage::isFiltered() const {
    ListFilter filter = m_with.coordinators.filters.filter();
    filter.searchText.clear();
    return filter != ListFilter();
}

bool ApplicationsPage::isAnalysing() const {
    return m_with.coordinators.filters.isIconAnalysisInProgress();
}

double ApplicationsPage::analysisProgress() const {
    return m_with.coordinators.filters.analysisProgress();
}

bool ApplicationsPage::sortsDescending() const {
    return m_with.coordinators.userApps.sortOrder() == SortOrder::descending;
}

void ApplicationsPage::setSearchText(const QString& text) {
    m_with.coordinators.filters.setSearchText(text.toStdString());
}

void ApplicationsPage::setFilterOption(int option) {
    m_with.coordinators.filters.setFilterOption(static_cast<FilterOption>(option));
}

void ApplicationsPage::setShowOnlyDockItems(bool shows) {
    m_with.coordinators.filters.setShowOnlyDockItems(shows);
}

void ApplicationsPage::setShowOnlyNonSquircle(bool shows) {
    m_with.coordinators.filters.setShowOnlyNonSquircle(shows);
}

void ApplicationsPage::setShowUnsupportedApps(bool shows) {
    m_with.coordinators.filters.setShowUnsupportedApps(shows);
}

void ApplicationsPage::setSortsDescending(bool descending) {
    const SortOrder order = descending ? SortOrder::descending : SortOrder::ascending;
    m_with.coordinators.userApps.setSortOrder(order);
    m_with.coordinators.systemApps.setSortOrder(order);
    Q_EMIT sortChanged();
}

void ApplicationsPage::clearFilters() {
    setSearchText({});
    setFilterOption(static_cast<int>(FilterOption::allItems));
    setShowOnlyDockItems(false);
    setShowOnlyNonSquircle(false);
    setShowUnsupportedApps(false);
}

void ApplicationsPage::tryAgain() {
    m_with.coordinators.refresh();
}

} // namespace tavrik
