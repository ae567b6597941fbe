#include "changes/PendingChangesManager.h"
#include "icons/IconShapeAnalysis.h"
#include "icons/list/ApplicationsCoordinator.h"
#include "icons/list/CatalogueReader.h"
#include "icons/list/CheckedIcons.h"
#include "icons/list/RowDescription.h"
#include "icons/list/StagedDifference.h"
#include "model/catalogue/AppManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Threads.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace tavrik {

/// An icon of a theme that is chosen and does not stand where it stood.
struct ApplicationsCoordinator::MovedChoice {
    std::string bundleID;
    std::optional<std::size_t> place; ///< among the icons offered now; nothing when it is none of them

    /// Nothing when the row's choice stays as it is with these icons in the place of its own.
    static std::optional<MovedChoice> of(const ApplicationRow& row, const std::vector<MacPath>& themeIcons) {
        const auto display = static_cast<int>(row.displayPaths().size());
        if (row.app.selectedIconIndex < display)
            return std::nullopt;
        const auto before = static_cast<std::size_t>(row.app.selectedIconIndex - display);
        if (before >= row.app.themeIcons.size())
            return std::nullopt;
        const auto found = std::ranges::find(themeIcons, row.app.themeIcons[before]);
        MovedChoice choice{.bundleID = row.app.bundleID, .place = std::nullopt};
        if (found != themeIcons.end())
            choice.place = static_cast<std::size_t>(found - themeIcons.begin());
        return choice.place == before ? std::nullopt : std::optional(std::move(choice));
    }
};

void ApplicationsCoordinator::load(const CatalogueReading& reading) {
    assertOnMainThread("Loading a list");
    if (reading.apps.empty() && !m_applications.empty())
        return;
    std::map<std::string_view, const ApplicationRow*> known;
    for (const ApplicationRow& row : m_applications)
        known.emplace(row.app.bundleID, &row);

    std::vector<ApplicationRow> rows;
    std::vector<MovedChoice> moved;
    for (const ApplicationInfo& app : reading.apps) {
        if (isSystemPath(app.path) != (m_mode == LoadingMode::systemApps))
            continue;
        ApplicationRow& row = rows.emplace_back(describedRow(app, reading, m_with.fonts, m_with.unsupported));
        row.isSquircle = m_with.shapes.isSquircle(app.path);
        const auto before = known.find(app.bundleID);
        if (before == known.end())
            continue;
        row.app.id = before->second->app.id;
        setIconRow(row.app, before->second->icons());
        // What is not found need not be gone: a folder may just not have been readable.
        if (auto choice = MovedChoice::of(*before->second, row.app.themeIcons); choice && choice->place)
            moved.push_back(std::move(*choice));
        known.erase(before);
    }
    for (const auto& [bundleID, row] : known)
        m_warnings.erase(std::string(bundleID));

    m_isReading = true;
    follow(moved);
    for (ApplicationRow& row : rows)
        readIcons(row);
    m_seen = m_with.pendingChanges.staged();
    m_isReading = false;

    sortRows(rows, m_sortOrder);
    const bool differs = m_isLoaded && rows != m_applications;
    m_applications = std::move(rows);
    m_isLoaded = true;
    m_analysed.clear();
    applyFilters();
    if (differs)
        m_with.notifications.post(kApplicationDataUpdated);
}

/// Whether the row is another one than before. Its theme icons are known already.
bool ApplicationsCoordinator::readIcons(ApplicationRow& row) {
    CheckedIcons icons = checkedIcons(m_with.mac.files, recordedIcons(row.app.bundleID),
                                      row.app.themeIcons.size(), row.app.name);
    const auto [warnings, isFirst] = m_warnings.try_emplace(row.app.bundleID);
    const bool differs = isFirst || icons.row != row.icons();
    if (differs || icons.warnings != warnings->second) {
        for (const std::string& warning : icons.warnings)
            log(warning);
    }
    warnings->second = std::move(icons.warnings);
    if (!differs)
        return false;
    setIconRow(row.app, icons.row);
    log("📋 Loaded state for " + row.app.name);
    log("   - Permanent: " + std::to_string(icons.row.permanentIconPaths.size()));
    log("   - Display count: " + std::to_string(icons.row.displayPaths().size()));
    return true;
}

IconRow ApplicationsCoordinator::recordedIcons(const std::string& bundleID) const {
    return tavrik::recordedIcons(bundleID, m_with.pendingChanges.staged(), m_with.pendingChanges,
                                 m_with.settings);
}

void ApplicationsCoordinator::pendingChangesUpdated() {
    if (m_isLoaded && !m_isReading)
        readAnew(differenceOf(m_seen, m_with.pendingChanges.staged()));
}

void ApplicationsCoordinator::readAnew(const StagedDifference& difference) {
    if (difference.empty())
        return;
    std::map<std::string, std::vector<MacPath>> offered;
    if (difference.isAboutThemes)
        offered = m_with.themes.themeIcons(m_with.themes.offer());
    bool differs = false;
    std::vector<ApplicationRow*> outdated;
    std::vector<MovedChoice> moved;
    for (ApplicationRow& row : m_applications) {
        const std::string& bundleID = row.app.bundleID;
        const bool hasOtherEntry = difference.icons.contains(bundleID);
        auto themeIcons = difference.isAboutThemes                   ? std::move(offered[bundleID])
                          : difference.themeIcons.contains(bundleID) ? m_with.themes.themeIconsFor(bundleID)
                                                                     : row.app.themeIcons;
        const bool hasOtherIcons = themeIcons != row.app.themeIcons;
        if (!hasOtherEntry && !hasOtherIcons)
            continue;
        outdated.push_back(&row);
        differs = differs || hasOtherIcons;
        if (!hasOtherEntry) {
            if (auto choice = MovedChoice::of(row, themeIcons))
                moved.push_back(std::move(*choice));
        }
        row.app.themeIcons = std::move(themeIcons);
    }

    m_isReading = true;
    follow(moved);
    for (ApplicationRow* row : outdated)
        differs = readIcons(*row) || differs;
    m_seen = m_with.pendingChanges.staged();
    m_isReading = false;
    if (differs) {
        applyFilters();
        m_with.notifications.post(kApplicationDataUpdated);
    }
}

void ApplicationsCoordinator::follow(const std::vector<MovedChoice>& choices) {
    if (m_with.apps.isApplyingChanges)
        return;
    for (const MovedChoice& choice : choices) {
        const auto display = m_with.pendingChanges.iconRow(choice.bundleID).displayPaths().size();
        const auto place =
            choice.place ? std::optional(static_cast<int>(display + *choice.place)) : std::nullopt;
        ignoreFailure(m_with.pendingChanges.selectIcon(choice.bundleID, place));
    }
}

} // namespace tavrik
