#include "cli/ThemeCommands.h"

#include "cli/AppLookup.h"
#include "cli/Staged.h"
#include "cli/Table.h"
#include "cli/ThemeJson.h"
#include "cli/ThemeLookup.h"
#include "cli/Words.h"
#include "model/catalogue/Refusal.h"
#include "themes/ThemeCoverage.h"

#include <algorithm>

namespace tavrik {

namespace {

constexpr const char* kNotApplied =
    "Nothing is applied yet: \"tavrikctl status\" tells all that is staged, \"tavrikctl discard\" drops it.";

/// What is staged, none when it cannot be read; the sentence is printed then.
StagedChanges stagedIn(Companion& companion) {
    auto staged = lookAtStaged(companion);
    if (staged)
        return std::move(staged->changes);
    companion.complain(staged.error().description);
    return {};
}

std::string quoted(const Theme& theme) {
    return "\"" + theme.name + "\"";
}

std::string listOf(const std::vector<ApplicationInfo>& apps) {
    std::string names;
    for (const ApplicationInfo& app : apps)
        names += (names.empty() ? "" : ", ") + app.name;
    return names;
}

} // namespace

ExitCode ThemeListCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::looking); opened != ExitCode::done)
        return opened;
    const StagedChanges staged = stagedIn(companion);
    std::vector<ListedTheme> themes;
    for (const Theme& theme : installedThemes(companion)) {
        themes.push_back({.theme = theme,
                          .icons = companion.managers().themes.library().icons(theme.themeID).size(),
                          .isToBeDeleted = staged.pendingThemeDeletions.contains(theme.themeID)});
    }
    if (json) {
        companion.say(jsonText(toJson(themes)));
        return ExitCode::done;
    }
    if (themes.empty()) {
        companion.say("There are no themes yet. \"tavrikctl theme create NAME\" makes one, \"tavrikctl theme "
                      "import-folder FOLDER\" makes one of pictures.");
        return ExitCode::done;
    }
    Table table({"Name", "Icons", "Since", "Id", "Remarks"});
    for (const ListedTheme& listed : themes) {
        table.add({listed.theme.name, std::to_string(listed.icons), isoText(listed.theme.createdDate),
                   listed.theme.themeID, listed.isToBeDeleted ? "to be deleted" : ""});
    }
    companion.say(table.text());
    return ExitCode::done;
}

ExitCode ThemeShowCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::looking); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* shown = std::get_if<Theme>(&found);
    if (!shown)
        return std::get<ExitCode>(found);
    const auto icons = iconsInWords(companion.managers().themes.library().icons(shown->themeID),
                                    companion.managers().hiddenThemeIcons.hidden(shown->themeID),
                                    stagedIn(companion), shown->themeID);
    if (json) {
        companion.say(jsonText(toJson(*shown, icons)));
        return ExitCode::done;
    }
    companion.say(shown->name + " (" + shown->themeID + "), since " + isoText(shown->createdDate) + ", " +
                  counted(icons.size(), "icon") + (icons.empty() ? "." : ":"));
    if (icons.empty())
        return ExitCode::done;
    Table table({"Identifier", "File", "State"});
    for (const ShownThemeIcon& icon : icons)
        table.add({icon.icon.bundleID, icon.icon.file.name(), icon.state});
    companion.say(table.text());
    return ExitCode::done;
}

ExitCode ThemeCoverageCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::reading); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* shown = std::get_if<Theme>(&found);
    if (!shown)
        return std::get<ExitCode>(found);
    Managers& managers = companion.managers();
    const auto apps = managers.apps.loadApplications();
    if (apps.empty())
        return companion.fail(kNoCatalogue);
    std::set<std::string> hidden = managers.hiddenThemeIcons.hidden(shown->themeID);
    for (const ThemeIconHide& hide : stagedIn(companion).pendingThemeIconHides) {
        if (hide.themeID == shown->themeID)
            hidden.insert(hide.iconFileName);
    }
    const ThemeCoverage coverage = coverageOf(managers.themes.library().icons(shown->themeID), hidden, apps);
    if (json) {
        companion.say(jsonText(toJson(*shown, coverage)));
        return ExitCode::done;
    }
    companion.say(shown->name + " has an icon for " + std::to_string(coverage.covered.size()) + " of " +
                  std::to_string(coverage.covered.size() + coverage.hidden.size() + coverage.lacking.size()) +
                  " applications.");
    const auto tell = [&](const char* what, const std::vector<ApplicationInfo>& list) {
        if (!list.empty())
            companion.say(what + listOf(list) + ".");
    };
    tell("Covered: ", coverage.covered);
    tell("Hidden: ", coverage.hidden);
    tell("Without an icon: ", coverage.lacking);
    tell("With an icon, but not to be restyled: ", coverage.notRestylable);
    if (!coverage.withoutApplication.empty())
        companion.say(counted(coverage.withoutApplication.size(), "icon") +
                      " of applications that are not installed.");
    return ExitCode::done;
}

ExitCode ThemeCreateCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    const auto created = companion.managers().themes.createTheme(name, withActiveIcons);
    if (!created)
        return companion.fail(created.error().description + ".");
    const std::size_t icons = companion.managers().themes.library().icons(created->themeID).size();
    companion.say("The theme " + quoted(*created) + " is made, with " + counted(icons, "icon") +
                  ". \"tavrikctl theme add-icon '" + created->name + "' BUNDLE-ID IMAGE\" adds one.");
    return ExitCode::done;
}

ExitCode ThemeRenameCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* renamed = std::get_if<Theme>(&found);
    if (!renamed)
        return std::get<ExitCode>(found);
    if (const Status done = companion.managers().themes.updateTheme(*renamed, newName); !done)
        return companion.fail(done.error().description + ".");
    companion.say("The theme " + quoted(*renamed) + " is now \"" + trimmedThemeName(newName) + "\".");
    return ExitCode::done;
}

ExitCode ThemeApplyCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* applied = std::get_if<Theme>(&found);
    if (!applied)
        return std::get<ExitCode>(found);
    const ThemeApplication answer = companion.managers().themes.applyTheme(*applied);
    for (const ApplicationInfo& app : answer.leftAlone)
        companion.say(refusalOf(app, companion.managers().unsupported.contains(app.bundleID)));
    for (const std::string& sentence : answer.failed)
        companion.complain(sentence);
    if (answer.applied > 0) {
        if (const ExitCode saved = confirmStaged(companion); saved != ExitCode::done)
            return saved;
        companion.say(counted(answer.applied, "icon") + " of " + quoted(*applied) + " chosen. " + kNotApplied);
    } else if (answer.failed.empty()) {
        return companion.refuse("The theme " + quoted(*applied) +
                                " has no icon to apply for any installed application.");
    }
    return answer.failed.empty() ? ExitCode::done : ExitCode::failed;
}

ExitCode ThemeDeleteCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* deleted = std::get_if<Theme>(&found);
    if (!deleted)
        return std::get<ExitCode>(found);
    companion.onMain([&] { companion.managers().pendingChanges.deleteTheme(deleted->themeID); });
    if (const ExitCode saved = confirmStaged(companion); saved != ExitCode::done)
        return saved;
    companion.say("The theme " + quoted(*deleted) + " is deleted when the changes are applied. " + kNotApplied);
    return ExitCode::done;
}

} // namespace tavrik
