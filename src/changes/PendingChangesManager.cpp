#include "changes/PendingChangesManager.h"

#include "fonts/FontReplacer.h"
#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathComponent.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"
#include "platform/Threads.h"
#include "platform/Volume.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace tavrik {

namespace {

/// "[a, b]".
template<typename Items, typename ToText>
std::string listText(const Items& items, ToText&& toText) {
    std::string list;
    for (const auto& item : items)
        list += (list.empty() ? "" : ", ") + toText(item);
    return "[" + list + "]";
}

bool areSafe(std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        if (!isSafePathComponent(name)) {
            log("⚠️ Refusing an unsafe name: " + std::string(name));
            return false;
        }
    }
    return true;
}

template<typename Items, typename Item>
void insertOnce(Items& items, Item item) {
    if (std::ranges::find(items, item) == items.end())
        items.push_back(std::move(item));
}

} // namespace

const std::array<std::string_view, 6> PendingChangesManager::magicPhrases = {
    "Working the magic...", "Casting spells...",        "Conjuring icons...",
    "Brewing changes...",   "Sprinkling magic dust...", "Waving magic wand...",
};

PendingChangesManager::PendingChangesManager(Mac& mac, SettingsManager& settings, const FontReplacer& fonts,
                                             IconStore& store, IconTransfer& transfer,
                                             NotificationCenter& notifications)
    : m_files(mac.files),
      m_clock(mac.clock),
      m_settings(settings),
      m_fonts(fonts),
      m_store(store),
      m_transfer(transfer),
      m_notifications(notifications),
      m_tavrikAppsURL(wrapperFolder(mac.volume.home())),
      m_pendingChangesBaseURL(settings.appSupportURL() / "PendingChanges"),
      m_file(mac.files, m_pendingChangesBaseURL),
      m_applied(mac.files, store, settings) {
    const MacPath& folder = pendingIconsBaseURL();
    if (const Status created = createPlainFolder(m_files, settings.appSupportURL(), folder); !created)
        log("Failed to create directories: " + created.error().description);
    log("💾 Recovery file location: " + tempFileURL().string());
    log("📁 Pending icons location: " + pendingIconsBaseURL().string());
    if (m_file.exists())
        log("⚠️ Found existing recovery file from previous session!");
    readActiveFont();
    m_isInitializing = false;
}

const MacPath& PendingChangesManager::pendingIconsBaseURL() const {
    return m_store.pendingIconsBaseURL();
}

bool PendingChangesManager::isPendingIconOf(const MacPath& path, const std::string& bundleID) const {
    return m_store.ownsPath(path, bundleID) && path.isInside(pendingIconsBaseURL());
}

// Rows

IconRow PendingChangesManager::iconRow(const std::string& bundleID) const {
    return iconRow(bundleID, m_staged);
}

IconRow PendingChangesManager::iconRow(const std::string& bundleID, const StagedChanges& changes) const {
    assertOnMainThread("Reading a row of icons");
    const AppliedIcons::State applied = m_applied.look(bundleID);
    IconRow row{.permanentIconPaths = applied.permanentIconPaths};
    const auto staged = changes.pendingChanges.find(bundleID);
    if (staged == changes.pendingChanges.end()) {
        row.selectedIconIndex = applied.placeIn(applied.permanentIconPaths).value_or(-1);
        return row;
    }
    if (const auto marked = changes.markedForDeletion.find(bundleID); marked != changes.markedForDeletion.end())
        std::ranges::set_intersection(
            marked->second, applied.numbers(),
            std::inserter(row.hiddenPermanentIndices, row.hiddenPermanentIndices.end()));
    const IconChange& change = staged->second;
    for (const MacPath& path : change.iconPaths) {
        if (isPendingIconOf(path, bundleID))
            row.pendingAdditionPaths.push_back(path);
    }
    row.selectedIconIndex = selectionIn(row.displayPaths(), change).value_or(-1);
    return row;
}

bool PendingChangesManager::addIcon(const std::string& bundleID, const MacPath& pendingIcon) {
    assertOnMainThread("Adding an icon");
    if (!isSavedIconOf(pendingIcon, bundleID))
        return false;
    recordIcon(bundleID, pendingIcon);
    updatePendingChangesState();
    return true;
}

std::size_t PendingChangesManager::addIcons(const std::map<std::string, MacPath>& icons) {
    assertOnMainThread("Adding icons");
    std::size_t staged = 0;
    for (const auto& [bundleID, icon] : icons) {
        const auto shown = iconRow(bundleID).displayPaths();
        if (std::ranges::find(shown, icon) == shown.end() && !isSavedIconOf(icon, bundleID))
            continue;
        recordIcon(bundleID, icon);
        ++staged;
    }
    if (staged > 0)
        updatePendingChangesState();
    return staged;
}

/// With a log line when it is not.
bool PendingChangesManager::isSavedIconOf(const MacPath& path, const std::string& bundleID) const {
    const auto present = m_files.attributes(path, Links::dontFollow);
    if (isPendingIconOf(path, bundleID) && present && present->type == FileType::file)
        return true;
    log("⚠️ Refusing what is not a pending icon of " + bundleID + ": " + path.string());
    return false;
}

/// The icon is chosen: where the row shows it, or else as its last one.
void PendingChangesManager::recordIcon(const std::string& bundleID, const MacPath& icon) {
    IconRow row = iconRow(bundleID);
    auto display = row.displayPaths();
    auto place = std::ranges::find(display, icon);
    if (place == display.end()) {
        row.pendingAdditionPaths.push_back(icon);
        place = display.insert(display.end(), icon);
    }
    recordRow(bundleID, row.pendingAdditionPaths, row.hiddenPermanentIndices,
              static_cast<int>(place - display.begin()));
}

bool PendingChangesManager::removeIcon(const std::string& bundleID, int displayIndex) {
    assertOnMainThread("Removing an icon");
    IconRow row = iconRow(bundleID);
    const auto display = row.displayPaths();
    if (displayIndex < 0 || static_cast<std::size_t>(displayIndex) >= display.size()) {
        log("❌ Index out of bounds: " + std::to_string(displayIndex));
        return false;
    }
    const MacPath& icon = display[static_cast<std::size_t>(displayIndex)];
    const bool isPending = std::erase(row.pendingAdditionPaths, icon) > 0;
    if (!isPending)
        row.hiddenPermanentIndices.insert(iconIndex(icon.name()).value());

    int selected = row.selectedIconIndex;
    if (selected == displayIndex)
        selected = -1;
    else if (selected > displayIndex)
        --selected;
    const bool saved = stageRow(bundleID, row.pendingAdditionPaths, row.hiddenPermanentIndices, selected);
    // While the file on disk still names the icon, a recovery would miss it.
    if (isPending && saved && !m_keepsRemovedIcons)
        m_store.deletePendingIcon(icon);
    return true;
}

bool PendingChangesManager::selectIcon(const std::string& bundleID, std::optional<int> index) {
    assertOnMainThread("Selecting an icon");
    if ((index && *index < 0) || !isSafePathComponent(bundleID)) {
        log("⚠️ Invalid icon index " + std::to_string(index.value_or(-1)));
        return false;
    }
    const IconRow row = iconRow(bundleID);
    stageRow(bundleID, row.pendingAdditionPaths, row.hiddenPermanentIndices, index);
    return true;
}

void PendingChangesManager::updatePendingState(const std::string& bundleID,
                                               const std::vector<MacPath>& pendingPaths,
                                               const std::set<int>& hiddenIndices,
                                               std::optional<int> selectedIndex) {
    assertOnMainThread("Staging a row of icons");
    if (areSafe({bundleID}))
        stageRow(bundleID, pendingPaths, hiddenIndices, selectedIndex);
}

bool PendingChangesManager::stageRow(const std::string& bundleID, const std::vector<MacPath>& pendingPaths,
                                     const std::set<int>& hiddenIndices, std::optional<int> selectedIndex) {
    recordRow(bundleID, pendingPaths, hiddenIndices, selectedIndex);
    return updatePendingChangesState();
}

/// In memory alone.
void PendingChangesManager::recordRow(const std::string& bundleID, const std::vector<MacPath>& pendingPaths,
                                      const std::set<int>& hiddenIndices, std::optional<int> selectedIndex) {
    log("📊 updatePendingState for " + bundleID);
    log("   Pending paths: " + listText(pendingPaths, [](const MacPath& path) { return path.string(); }));
    log("   Hidden indices: " + listText(hiddenIndices, [](int index) { return std::to_string(index); }));

    const AppliedIcons::State applied = m_applied.look(bundleID);
    const std::set<int> numbers = applied.numbers();
    IconRow row{.permanentIconPaths = applied.permanentIconPaths};
    for (const int index : hiddenIndices) {
        if (numbers.contains(index))
            row.hiddenPermanentIndices.insert(index);
        else
            log("⚠️ Warning: Invalid hidden index " + std::to_string(index));
    }
    for (const MacPath& path : pendingPaths) {
        if (isPendingIconOf(path, bundleID))
            insertOnce(row.pendingAdditionPaths, path);
        else
            log("⚠️ Warning: Path marked as pending but not in pending directory: " + path.string());
    }
    if (selectedIndex && *selectedIndex < 0)
        selectedIndex.reset();

    const bool isApplied = row.pendingAdditionPaths.empty() && row.hiddenPermanentIndices.empty() &&
                           applied.isChosenBy(selectedIndex) && !m_staged.unfinished.contains(bundleID);
    if (isApplied)
        m_staged.pendingChanges.erase(bundleID);
    else
        m_staged.pendingChanges.insert_or_assign(bundleID, IconChange{row.displayPaths(), selectedIndex});
    if (row.hiddenPermanentIndices.empty())
        m_staged.markedForDeletion.erase(bundleID);
    else
        m_staged.markedForDeletion.insert_or_assign(bundleID, row.hiddenPermanentIndices);
}

// Themes and fonts

void PendingChangesManager::hideThemeIcon(const std::string& themeID, const std::string& iconFileName) {
    assertOnMainThread("Hiding a theme icon");
    if (!areSafe({themeID, iconFileName}))
        return;
    insertOnce(m_staged.pendingThemeIconHides, ThemeIconHide{themeID, iconFileName});
    updatePendingChangesState();
}

void PendingChangesManager::unhideThemeIcon(const std::string& themeID, const std::string& iconFileName) {
    assertOnMainThread("Taking back the hide of a theme icon");
    std::erase(m_staged.pendingThemeIconHides, ThemeIconHide{themeID, iconFileName});
    updatePendingChangesState();
}

void PendingChangesManager::deleteThemeIcon(const std::string& themeID, const std::string& iconFileName) {
    assertOnMainThread("Deleting a theme icon");
    if (!areSafe({themeID, iconFileName}))
        return;
    insertOnce(m_staged.pendingThemeIconDeletions[themeID], iconFileName);
    updatePendingChangesState();
}

void PendingChangesManager::keepThemeIcon(const std::string& themeID, const std::string& iconFileName) {
    assertOnMainThread("Taking back the deletion of a theme icon");
    const auto deletions = m_staged.pendingThemeIconDeletions.find(themeID);
    if (deletions == m_staged.pendingThemeIconDeletions.end() ||
        std::erase(deletions->second, iconFileName) == 0)
        return;
    if (deletions->second.empty())
        m_staged.pendingThemeIconDeletions.erase(deletions);
    updatePendingChangesState();
}

void PendingChangesManager::deleteTheme(const std::string& themeID) {
    assertOnMainThread("Deleting a theme");
    if (!areSafe({themeID}))
        return;
    m_staged.pendingThemeDeletions.insert(themeID);
    updatePendingChangesState();
}

void PendingChangesManager::keepTheme(const std::string& themeID) {
    assertOnMainThread("Taking back the deletion of a theme");
    if (m_staged.pendingThemeDeletions.erase(themeID) > 0)
        updatePendingChangesState();
}

void PendingChangesManager::setPendingFont(const std::optional<std::string>& font) {
    assertOnMainThread("Staging a font");
    if (font && !m_fonts.hasFont(*font)) {
        log("⚠️ Refusing a font that there is not: " + *font);
        return;
    }
    m_staged.pendingFont = font;
    if (font)
        m_staged.pendingReset = false;
    updatePendingChangesState();
}

void PendingChangesManager::setPendingReset(bool reset) {
    assertOnMainThread("Staging a reset");
    m_staged.pendingReset = reset;
    if (reset)
        m_staged.pendingFont.reset();
    updatePendingChangesState();
}

} // namespace tavrik
