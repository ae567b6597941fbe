#include "cli/ThemeIconCommands.h"

#include "cli/Staged.h"
#include "cli/ThemeLookup.h"
#include "icons/ImageIntake.h"
#include "platform/HostFile.h"

#include <algorithm>

namespace tavrik {

namespace {

/// An icon of a theme: all files that it may lie in. The list of the hidden ones goes by the first.
struct IconOfTheme {
    Theme theme;
    std::string bundleID;
    std::vector<std::string> fileNames;

    std::string inWords() const { return "The icon for " + bundleID + " in \"" + theme.name + "\""; }
};

ExitCode stage(Companion& companion, const IconOfTheme& icon,
               void (PendingChangesManager::*how)(const std::string&, const std::string&),
               const char* outcome) {
    companion.onMain([&] {
        for (const std::string& fileName : icon.fileNames)
            (companion.managers().pendingChanges.*how)(icon.theme.themeID, fileName);
    });
    if (const ExitCode saved = confirmStaged(companion); saved != ExitCode::done)
        return saved;
    companion.say(icon.inWords() + outcome);
    return ExitCode::done;
}

ExitCode unhide(Companion& companion, const IconOfTheme& icon) {
    const auto hides =
        companion.onMain([&] { return companion.managers().pendingChanges.staged().pendingThemeIconHides; });
    const auto isIts = [&](const std::string& fileName) {
        return std::ranges::find(icon.fileNames, fileName) != icon.fileNames.end();
    };
    const bool isStaged = std::ranges::any_of(hides, [&](const ThemeIconHide& hide) {
        return hide.themeID == icon.theme.themeID && isIts(hide.iconFileName);
    });
    HiddenThemeIcons& hidden = companion.managers().hiddenThemeIcons;
    const std::set<std::string> applied = hidden.hidden(icon.theme.themeID);
    const bool isApplied = std::ranges::any_of(applied, isIts);
    if (!isStaged && !isApplied)
        return companion.refuse(icon.inWords() + " is not hidden.");

    if (isStaged) {
        const ExitCode taken = stage(companion, icon, &PendingChangesManager::unhideThemeIcon,
                                     " was only staged to be hidden; that is taken back.");
        if (taken != ExitCode::done || !isApplied)
            return taken;
    }
    for (const std::string& fileName : icon.fileNames) {
        if (!hidden.unhide(icon.theme.themeID, fileName))
            return companion.fail(icon.inWords() + " is still hidden; the line above says why.");
    }
    companion.say(icon.inWords() + " is no longer hidden, as of now.");
    return ExitCode::done;
}

} // namespace

ExitCode ThemeIconAddCommand::run(Companion& companion) {
    const HostPath file(picture);
    const auto content = readHostFile(file);
    if (!content)
        return companion.fail(content.error().description);
    const auto image = readPicture(*content, file.name());
    if (!image)
        return companion.fail(image.error().description);
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* filled = std::get_if<Theme>(&found);
    if (!filled)
        return std::get<ExitCode>(found);
    if (const Status added = companion.managers().themes.addIcon(*image, bundleID, *filled); !added)
        return companion.fail(file.name() + " could not be added: " + added.error().description + ".");
    companion.say(file.name() + " is the icon for " + bundleID + " in \"" + filled->name + "\".");
    return ExitCode::done;
}

ExitCode ThemeIconCommand::run(Companion& companion) {
    if (const ExitCode opened = openThemes(companion, Access::writing); opened != ExitCode::done)
        return opened;
    const auto found = findTheme(companion, theme);
    const auto* shown = std::get_if<Theme>(&found);
    if (!shown)
        return std::get<ExitCode>(found);
    IconOfTheme icon{*shown, bundleID, iconFilesOf(companion, *shown, bundleID)};
    if (icon.fileNames.empty())
        return companion.fail(noSuchThemeIcon(companion, *shown, bundleID));
    if (m_kind == Kind::remove)
        return stage(companion, icon, &PendingChangesManager::deleteThemeIcon,
                     " is deleted when the changes are applied.");
    // An application is looked up in the list by this name, whatever its icon's format.
    if (const std::string png = bundleID + ".png"; icon.fileNames.front() != png)
        icon.fileNames.insert(icon.fileNames.begin(), png);
    if (m_kind == Kind::hide)
        return stage(companion, icon, &PendingChangesManager::hideThemeIcon,
                     " is hidden when the changes are applied; \"tavrikctl theme unhide\" takes it back.");
    return unhide(companion, icon);
}

} // namespace tavrik
