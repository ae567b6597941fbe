#include "changes/apply/steps/Steps.h"
#include "icons/HiddenThemeIcons.h"
#include "platform/Log.h"
#include "themes/ThemeManager.h"

namespace tavrik {

Next changeThemes(ApplyRun& run) {
    const StagedChanges& changes = run.snapshot.changes;
    for (const ThemeIconHide& hide : changes.pendingThemeIconHides)
        ignoreFailure(run.with.hiddenThemeIcons.hide(hide.themeID, hide.iconFileName));

    if (changes.pendingThemeIconDeletions.empty() && changes.pendingThemeDeletions.empty())
        return Next::goOn;
    for (const auto& [themeID, fileNames] : changes.pendingThemeIconDeletions) {
        for (const std::string& fileName : fileNames) {
            if (const Status removed = run.with.themes.library().removeIcon(themeID, fileName); !removed)
                log("Failed to delete the theme icon " + fileName + ": " + removed.error().description);
        }
    }
    for (const std::string& themeID : changes.pendingThemeDeletions) {
        if (const Status removed = run.with.themes.removeTheme(themeID); !removed)
            log("Failed to delete the theme " + themeID + ": " + removed.error().description);
    }
    run.with.themes.loadThemes();
    return Next::goOn;
}

} // namespace tavrik
