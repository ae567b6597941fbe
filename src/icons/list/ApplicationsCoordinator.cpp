#include "icons/list/ApplicationsCoordinator.h"

#include "changes/PendingChangesManager.h"
#include "fonts/FontReplacer.h"
#include "icons/IconShapeAnalysis.h"
#include "icons/list/ApplicationsTable.h"
#include "icons/list/FilterSettingsManager.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Threads.h"
#include "system/IconManager.h"
#include "system/Trimmed.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace tavrik {

namespace {

const char* textOf(LoadingMode mode) {
    return mode == LoadingMode::userApps ? "userApps" : "systemApps";
}

} // namespace

ApplicationsCoordinator::ApplicationsCoordinator(LoadingMode mode, const ListServices& with)
    : m_mode(mode),
      m_with(with),
      m_filter(with.filters.filter()) {
    m_observations.push_back(
        m_with.notifications.observe(std::string(kPendingChangesUpdated), [this] { pendingChangesUpdated(); }));
    m_observations.push_back(m_with.notifications.observe(std::string(kFilterSettingsUpdated), [this] {
        if (m_with.filters.filter() != m_filter)
            applyFilters();
    }));
}

ApplicationsCoordinator::~ApplicationsCoordinator() {
    m_isStopping = true;
}

const ApplicationRow* ApplicationsCoordinator::find(const std::string& bundleID) const {
    const auto found = std::ranges::find_if(
        m_applications, [&](const ApplicationRow& row) { return row.app.bundleID == bundleID; });
    return found == m_applications.end() ? nullptr : &*found;
}

void ApplicationsCoordinator::setSortOrder(SortOrder order) {
    if (order == m_sortOrder)
        return;
    m_sortOrder = order;
    sortRows(m_applications, m_sortOrder);
    applyFilters();
}

void ApplicationsCoordinator::setTable(ApplicationsTable* table) {
    m_table = table;
    if (m_table)
        m_table->show(m_filteredApplications);
}

void ApplicationsCoordinator::applyFilters() {
    assertOnMainThread("Filtering a list");
    m_filter = m_with.filters.filter();
    if (!m_isLoaded) {
        log(std::string("Skipping filter application - no data loaded yet for ") + textOf(m_mode));
        return;
    }
    log(std::string("Applying filters for ") + textOf(m_mode) +
        " - filter option: " + labelOf(m_filter.filterOption));
    const RowFilter filter(m_filter, m_with.fonts.folded(trimmed(m_filter.searchText)));
    m_filteredApplications.clear();
    std::ranges::copy_if(m_applications, std::back_inserter(m_filteredApplications),
                         [&](const ApplicationRow& row) { return filter.shows(row); });
    if (m_table)
        m_table->show(m_filteredApplications);
    else
        log(std::string("No table view to reload for ") + textOf(m_mode));
    analyseShapes();
}

void ApplicationsCoordinator::analyseShapes() {
    if (!m_filter.showOnlyNonSquircle || m_isAnalyzingIcons)
        return;
    std::vector<MacPath> unknown;
    for (const ApplicationRow& row : m_applications) {
        if (!row.isSquircle && m_analysed.insert(row.app.path).second)
            unknown.push_back(row.app.path);
    }
    if (unknown.empty())
        return;
    m_isAnalyzingIcons = true;
    m_analysisRun = m_with.filters.beginIconAnalysis(unknown.size());
    m_with.shapes.analyse(
        unknown, &m_mainThread,
        [this](double progress) { m_with.filters.advanceIconAnalysis(m_analysisRun, progress); },
        [this] { shapesAnalysed(); });
}

void ApplicationsCoordinator::shapesAnalysed() {
    for (ApplicationRow& row : m_applications)
        row.isSquircle = m_with.shapes.isSquircle(row.app.path);
    m_isAnalyzingIcons = false;
    m_with.filters.endIconAnalysis(m_analysisRun);
    applyFilters();
}

void ApplicationsCoordinator::loadIcon(const std::string& bundleID, int side, QObject* context,
                                       std::function<void(const QImage&)> completion) {
    const ApplicationRow* row = find(bundleID);
    const MacPath path = row ? row->app.path : MacPath();
    m_iconQueue.async(
        [this, path, side, context = QPointer<QObject>(context), completion = std::move(completion)] {
            if (m_isStopping)
                return;
            const QImage icon = path.empty() ? QImage() : m_with.icons.appIcon(path, side);
            MainQueue::async(context, [completion, icon] { completion(icon); });
        });
}

} // namespace tavrik
