#include "ui/models/ThemeIconRow.h"

#include "themes/ThemeCoverage.h"

#include <algorithm>
#include <map>

namespace tavrik {

namespace {

bool contains(const std::vector<std::string>& names, const std::string& name) {
    return std::ranges::find(names, name) != names.end();
}

} // namespace

std::vector<ThemeIconRow> iconRows(const ThemeFacts& theme, const std::vector<ApplicationInfo>& apps,
                                   const StagedChanges& staged,
                                   const std::function<std::string(const ApplicationInfo&)>& refusalOf) {
    std::set<std::string> toBeHidden;
    for (const ThemeIconHide& hide : staged.pendingThemeIconHides) {
        if (hide.themeID == theme.theme.themeID && !theme.hidden.contains(hide.iconFileName))
            toBeHidden.insert(hide.iconFileName);
    }
    std::set<std::string> hidden = theme.hidden;
    hidden.insert(toBeHidden.begin(), toBeHidden.end());
    const auto deletions = staged.pendingThemeIconDeletions.find(theme.theme.themeID);

    std::map<std::string, const ThemeIcon*> icons;
    for (const ThemeIcon& icon : theme.icons)
        icons.emplace(icon.bundleID, &icon);
    const auto describeIcon = [&](ThemeIconRow& row) {
        const auto icon = icons.find(row.bundleID);
        if (icon == icons.end())
            return;
        const std::string name = icon->second->file.name();
        row.icon = icon->second->file;
        row.isToBeHidden = toBeHidden.contains(name);
        row.isToBeRemoved =
            deletions != staged.pendingThemeIconDeletions.end() && contains(deletions->second, name);
    };

    const ThemeCoverage coverage = coverageOf(theme.icons, hidden, apps);
    std::map<std::string, ThemeIconState> states;
    const auto note = [&states](const std::vector<ApplicationInfo>& list, ThemeIconState state) {
        for (const ApplicationInfo& app : list)
            states.emplace(app.bundleID, state);
    };
    note(coverage.covered, ThemeIconState::covered);
    note(coverage.lacking, ThemeIconState::lacking);
    note(coverage.hidden, ThemeIconState::hidden);
    note(coverage.notRestylable, ThemeIconState::notRestylable);

    std::vector<ThemeIconRow> rows;
    for (const ApplicationInfo& app : apps) {
        const auto state = states.find(app.bundleID);
        if (state == states.end())
            continue;
        ThemeIconRow& row = rows.emplace_back();
        row.bundleID = app.bundleID;
        row.appName = app.name;
        row.appPath = app.path;
        row.state = state->second;
        if (row.state == ThemeIconState::notRestylable)
            row.refusal = refusalOf(app);
        describeIcon(row);
    }
    for (const ThemeIcon& icon : coverage.withoutApplication) {
        ThemeIconRow& row = rows.emplace_back();
        row.bundleID = row.appName = icon.bundleID;
        row.state = ThemeIconState::withoutApplication;
        describeIcon(row);
    }
    return rows;
}

ThemeReach reachOf(const std::vector<ThemeIconRow>& rows) {
    ThemeReach reach;
    for (const ThemeIconRow& row : rows) {
        const bool isRestylable =
            row.state != ThemeIconState::notRestylable && row.state != ThemeIconState::withoutApplication;
        reach.restylable += isRestylable ? 1 : 0;
        reach.covered += row.state == ThemeIconState::covered && !row.isToBeRemoved ? 1 : 0;
    }
    return reach;
}

} // namespace tavrik
