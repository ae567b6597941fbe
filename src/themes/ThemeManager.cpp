#include "themes/ThemeManager.h"

#include "icons/HiddenThemeIcons.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/Threads.h"
#include "themes/ThemeError.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace tavrik {

namespace {

/// The name as it is to be stored, when no other theme has it.
Result<std::string> freeName(const std::string& name, const std::vector<Theme>& others) {
    std::string trimmed = trimmedThemeName(name);
    if (!isValidThemeName(trimmed))
        return errorOf(ThemeError::invalidThemeName);
    if (std::ranges::find(others, trimmed, &Theme::name) != others.end())
        return errorOf(ThemeError::themeAlreadyExists);
    return trimmed;
}

} // namespace

ThemeManager::ThemeManager(Mac& mac, SettingsManager& settings, AppManager& apps, IconStore& icons,
                           HiddenThemeIcons& hidden, PendingChangesManager& pendingChanges,
                           NotificationCenter& notifications)
    : m_mac(mac),
      m_settings(settings),
      m_apps(apps),
      m_icons(icons),
      m_hidden(hidden),
      m_pendingChanges(pendingChanges),
      m_notifications(notifications),
      m_library(mac) {}

void ThemeManager::open() {
    if (const Status made = m_library.createFolder(); !made)
        log("Error creating themes directory: " + made.error().description);
    loadThemes();
}

void ThemeManager::loadThemes() {
    const std::lock_guard lock(m_naming);
    readThemes();
}

void ThemeManager::readThemes() {
    std::vector<Theme> themes = m_library.load();
    // The order in which they were made, which is also that of `createTheme`.
    std::ranges::sort(themes, {},
                      [](const Theme& theme) { return std::tie(theme.createdDate, theme.themeID); });
    change([&](std::vector<Theme>& list) { list = std::move(themes); });
}

/// Changes the list where it lives.
void ThemeManager::change(const std::function<void(std::vector<Theme>&)>& how) {
    MainQueue::sync([&] {
        how(m_installedThemes);
        m_notifications.post(kThemesUpdated);
    });
}

std::vector<Theme> ThemeManager::listed() const {
    std::vector<Theme> themes;
    MainQueue::sync([&] { themes = m_installedThemes; });
    return themes;
}

Status ThemeManager::checkNewName(const std::string& name) const {
    const auto free = freeName(name, listed());
    return free ? Status(Done{}) : free.error();
}

Result<Theme> ThemeManager::createTheme(const std::string& name, bool moveActiveIcons) {
    Result<Theme> created = makeTheme(name, {});
    if (created && moveActiveIcons)
        moveSelectedIcons(*created);
    if (created)
        log("Successfully created theme: " + created->name);
    return created;
}

Result<Theme> ThemeManager::createTheme(const std::string& name, const std::map<std::string, Bytes>& icons) {
    Result<Theme> created = makeTheme(name, icons);
    if (created)
        log("Successfully created theme: " + created->name);
    return created;
}

Result<Theme> ThemeManager::makeTheme(const std::string& name, const std::map<std::string, Bytes>& icons) {
    assertOffMainThread("Creating a theme");
    const std::lock_guard lock(m_naming);
    const auto failed = [](const Error& error) {
        log("Error creating theme: " + error.description);
        return error;
    };
    const auto free = freeName(name, listed());
    if (!free)
        return failed(free.error());
    Theme theme{.themeID = drawThemeID(m_mac.random), .name = *free, .createdDate = m_mac.clock.now()};
    while (isTaken(theme.themeID))
        theme.themeID = drawThemeID(m_mac.random);
    if (const Status made = m_library.create(theme, icons); !made)
        return failed(made.error());
    change([&](std::vector<Theme>& list) { list.push_back(theme); });
    return theme;
}

Status ThemeManager::updateTheme(const Theme& theme, const std::string& newName) {
    assertOffMainThread("Renaming a theme");
    const std::lock_guard lock(m_naming);
    const auto failed = [](const Error& error) {
        log("Error updating theme: " + error.description);
        return error;
    };
    std::vector<Theme> others = listed();
    const auto listedTheme = std::ranges::find(others, theme.themeID, &Theme::themeID);
    Theme renamed = listedTheme == others.end() ? theme : *listedTheme;
    std::erase_if(others, [&](const Theme& other) { return other.themeID == theme.themeID; });

    const auto free = freeName(newName, others);
    if (!free && free.error() == errorOf(ThemeError::invalidThemeName)) {
        log("Invalid theme name: " + newName);
        return free.error();
    }
    if (!free)
        return failed(free.error());
    renamed.name = *free;
    if (const Status written = m_library.update(renamed); !written)
        return failed(written.error());
    change([&](std::vector<Theme>& list) {
        std::ranges::replace_if(list, [&](const Theme& old) { return old.themeID == theme.themeID; }, renamed);
    });
    log("Successfully updated theme: " + renamed.name);
    return Done{};
}

Status ThemeManager::removeTheme(const std::string& themeID) {
    assertOffMainThread("Removing a theme");
    const std::lock_guard lock(m_naming);
    if (const Status removed = m_library.remove(themeID); !removed)
        return removed;
    ignoreFailure(m_hidden.forget(themeID)); // ids are not drawn twice
    change([&](std::vector<Theme>& list) {
        std::erase_if(list, [&](const Theme& theme) { return theme.themeID == themeID; });
    });
    return Done{};
}

} // namespace tavrik
