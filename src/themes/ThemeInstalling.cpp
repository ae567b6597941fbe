#include "changes/PendingChangesManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/Threads.h"
#include "themes/ThemeError.h"
#include "themes/ThemeManager.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace tavrik {

namespace {

std::string withoutLastCharacter(const std::string& text) {
    const QString units = QString::fromStdString(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, units);
    finder.toEnd();
    finder.toPreviousBoundary();
    return units.left(std::max<qsizetype>(finder.position(), 0)).toStdString();
}

/// The name, or the first of "<name> 2", "<name> 3" ... that no theme has; shortened where it gets too long.
std::string numberedName(const std::string& name, const std::vector<Theme>& others) {
    const auto isInUse = [&](const std::string& text) {
        return std::ranges::find(others, text, &Theme::name) != others.end();
    };
    std::string candidate = name;
    for (unsigned number = 2; isInUse(candidate); ++number) {
        const std::string ending = " " + std::to_string(number);
        std::string beginning = name;
        while (!isValidThemeName(beginning + ending))
            beginning = trimmedThemeName(withoutLastCharacter(beginning));
        candidate = beginning + ending;
    }
    return candidate;
}

} // namespace

/// By anything at its place, a dangling link too, or by what is staged for a theme that is gone: that would be
/// done to the new one.
bool ThemeManager::isTaken(const std::string& themeID) const {
    StagedChanges staged;
    MainQueue::sync([&] { staged = m_pendingChanges.staged(); });
    return m_mac.files.attributes(m_library.folderOf(themeID), Links::dontFollow) ||
           staged.pendingThemeDeletions.contains(themeID) ||
           staged.pendingThemeIconDeletions.contains(themeID) ||
           std::ranges::find(staged.pendingThemeIconHides, themeID, &ThemeIconHide::themeID) !=
               staged.pendingThemeIconHides.end();
}

Result<Theme> ThemeManager::installTheme(const Theme& theme, const std::map<std::string, Bytes>& icons) {
    assertOffMainThread("Installing a theme");
    const std::lock_guard lock(m_naming);
    if (!isValidThemeName(theme.name))
        return errorOf(ThemeError::invalidThemeName);
    Theme installed = theme;
    installed.name = numberedName(theme.name, listed());
    while (isTaken(installed.themeID))
        installed.themeID = drawThemeID(m_mac.random);
    if (const Status created = m_library.create(installed, icons); !created) {
        Error failed = errorOf(ThemeError::installationFailed, created.error().description);
        failed.code = created.error().code;
        return failed;
    }
    readThemes(); // in its place by its date
    return installed;
}

} // namespace tavrik
