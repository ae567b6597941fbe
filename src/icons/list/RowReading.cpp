#include "changes/PendingChangesManager.h"
#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"
#include "icons/IconShapeAnalysis.h"
#include "icons/list/ApplicationsCoordinator.h"
#include "icons/list/CatalogueReader.h"
#include "icons/list/CheckedIcons.h"
#include "icons/list/StagedDifference.h"
#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "model/catalogue/AppManager.h"
#include "model/catalogue/Refusal.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Threads.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

namespace tavrik {

namespace {

std::string plainNameOf(const ApplicationInfo& app, const FontReplacer& fonts) {
    return fonts.convertToNormal(app.name) == app.name ? app.name
                                                       : plainTitle(app.name, std::nullopt, app.path, fonts);
}

} // namespace

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
        ApplicationRow& row = rows.emplace_back(describe(app, reading));
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

ApplicationRow ApplicationsCoordinator::describe(ApplicationInfo app, const CatalogueReading& reading) const {
    ApplicationRow row;
    row.app = std::move(app);
    row.plainName = plainNameOf(row.app, m_with.fonts);
    row.foldedName = m_with.fonts.folded(row.plainName);
    row.foldedBundleID = m_with.fonts.folded(row.app.bundleID);
    row.refusal = refusal(row.app, m_with.unsupported.contains(row.app.bundleID));
    row.isInDock = reading.dockApps.contains(row.app.bundleID);
    row.isSquircle = m_with.shapes.isSquircle(row.app.path);
    if (const auto icons = reading.themeIcons.find(row.app.bundleID); icons != reading.themeIcons.end())
        row.app.themeIcons = icons->second;
    return row;
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

/// As they are staged, or else stored, before anything is checked.
IconRow ApplicationsCoordinator::recordedIcons(const std::string& bundleID) const {
    IconRow row = m_with.pendingChanges.iconRow(bundleID);
    const StagedChanges& staged = m_with.pendingChanges.staged();
    if (staged.pendingChanges.contains(bundleID)) {
        if (const auto marked = staged.markedForDeletion.find(bundleID);
            marked != staged.markedForDeletion.end())
            row.hiddenPermanentIndices = marked->second;
        return row;
    }
    // A chosen icon of a theme is stored as a number behind the permanent ones.
    const auto selected = m_with.settings.getSelectedIcon(bundleID);
    if (row.selectedIconIndex < 0 && selected &&
        *selected >= static_cast<std::int64_t>(row.permanentIconPaths.size()))
        row.selectedIconIndex =
            static_cast<int>(std::min<std::int64_t>(*selected, std::numeric_limits<int>::max()));
    return row;
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
