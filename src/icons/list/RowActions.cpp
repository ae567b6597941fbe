#include "changes/PendingChangesManager.h"
#include "icons/IconFiles.h"
#include "icons/list/ApplicationsCoordinator.h"
#include "icons/list/StagedDifference.h"
#include "model/catalogue/AppManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "themes/ThemeIconName.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tavrik {

namespace {

std::string textOf(const std::set<int>& numbers) {
    std::string text;
    for (const int number : numbers)
        text += (text.empty() ? "" : ", ") + std::to_string(number);
    return "[" + text + "]";
}

Error noIconThere(const ApplicationRow& row) {
    return {"“" + row.plainName + "” has no icon in this place."};
}

} // namespace

Result<ApplicationRow> ApplicationsCoordinator::restylable(const std::string& bundleID,
                                                           const char* refusedForIOS,
                                                           const char* refusedForUnsupported) const {
    const ApplicationRow* row = find(bundleID);
    if (!row)
        return Error{"“" + bundleID + "” is not in the list."};
    if (row->refusal.empty())
        return *row;
    log((row->app.isIOSApp ? refusedForIOS : refusedForUnsupported) + row->app.name);
    return Error{row->refusal};
}

Status ApplicationsCoordinator::addIcon(const std::string& bundleID, const QImage& image,
                                        Completion completion) {
    const auto row =
        restylable(bundleID, "Cannot add icons to iOS app: ", "Cannot add icons to unsupported app: ");
    if (!row)
        return row.error();
    m_with.apps.processIcon(image, bundleID, row->plainName, &m_mainThread,
                            stagingOf(*row, std::move(completion)));
    return Done{};
}

Status ApplicationsCoordinator::addIcon(const std::string& bundleID, Bytes picture,
                                        const std::string& pictureName, Completion completion) {
    const auto row =
        restylable(bundleID, "Cannot add icons to iOS app: ", "Cannot add icons to unsupported app: ");
    if (!row)
        return row.error();
    m_with.apps.processPicture(std::move(picture), pictureName, bundleID, row->plainName, &m_mainThread,
                               stagingOf(*row, std::move(completion)));
    return Done{};
}

/// What follows when the picture has been saved, or has not.
std::function<void(const Result<MacPath>&)> ApplicationsCoordinator::stagingOf(const ApplicationRow& row,
                                                                               Completion completion) {
    return [this, bundleID = row.app.bundleID, name = row.plainName,
            completion = std::move(completion)](const Result<MacPath>& saved) {
        Status outcome = saved ? Status(Done{}) : saved.error();
        if (saved && !m_with.pendingChanges.addIcon(bundleID, *saved))
            outcome = Error{"The icon for “" + name + "” could not be added. Try again."};
        if (completion)
            completion(outcome);
    };
}

Status ApplicationsCoordinator::deleteIcon(const std::string& bundleID, int displayIndex) {
    const ApplicationRow* listed = find(bundleID);
    if (!listed)
        return Error{"“" + bundleID + "” is not in the list."};
    const ApplicationRow row = *listed;
    IconRow icons = row.icons();
    const auto display = icons.displayPaths();
    log("🗑️ Deleting at display index " + std::to_string(displayIndex));
    if (displayIndex < 0 || static_cast<std::size_t>(displayIndex) >= display.size()) {
        log("❌ Index out of bounds: " + std::to_string(displayIndex));
        return noIconThere(row);
    }
    const auto place = recordedPlace(row, displayIndex);
    if (!place)
        return place.error();

    const auto index = static_cast<std::size_t>(displayIndex);
    const std::size_t visible = display.size() - icons.pendingAdditionPaths.size();
    log("   Visible permanent: " + std::to_string(visible));
    log("   Current hidden indices: " + textOf(icons.hiddenPermanentIndices));
    if (index < visible) {
        const int number = iconIndex(display[index].name()).value_or(displayIndex);
        log("   Hiding permanent icon at actual index " + std::to_string(number));
        icons.hiddenPermanentIndices.insert(number);
    } else {
        log("   Deleting pending icon at index " + std::to_string(index - visible));
        std::erase(icons.pendingAdditionPaths, display[index]);
    }
    log("   Final state - Hidden: " + textOf(icons.hiddenPermanentIndices) +
        ", Pending: " + std::to_string(icons.pendingAdditionPaths.size()) + " items");
    if (!m_with.pendingChanges.removeIcon(bundleID, *place))
        return changedMeanwhile(row);
    return Done{};
}

Status ApplicationsCoordinator::selectIcon(const std::string& bundleID, int index) {
    const auto row =
        restylable(bundleID, "Cannot select icons for iOS app: ", "Cannot select icons for unsupported app: ");
    if (!row)
        return row.error();
    const std::size_t displayed = row->displayPaths().size();
    const std::size_t offered = row->app.themeIcons.size();
    if (index < -1 || index >= static_cast<int>(displayed + offered)) {
        log("⚠️ Invalid icon index " + std::to_string(index));
        return noIconThere(*row);
    }
    std::optional<int> place;
    if (index >= 0) {
        const auto recorded = recordedPlace(*row, index);
        if (!recorded)
            return recorded.error();
        place = *recorded;
    }
    log("📍 Selected icon at index " + std::to_string(index) + " for " + row->app.name);
    log("   Display paths count: " + std::to_string(displayed));
    log("   Theme icons count: " + std::to_string(offered));
    if (!m_with.pendingChanges.selectIcon(bundleID, place))
        return changedMeanwhile(*row);
    return Done{};
}

Status ApplicationsCoordinator::hideThemeIcon(const std::string& bundleID, const std::string& themeID,
                                              const std::string& fileName) {
    const auto row = restylable(
        bundleID, "Cannot hide theme icons for iOS app: ", "Cannot hide theme icons for unsupported app: ");
    if (!row)
        return row.error();
    const MacPath folder = m_with.themes.library().iconsOf(themeID);
    const bool isOffered =
        std::ranges::any_of(row->app.themeIcons, [&](const MacPath& icon) { return icon.parent() == folder; });
    if (!isOffered || bundleIDOfIcon(fileName) != bundleID)
        return Error{"The theme offers no icon “" + fileName + "” for “" + row->plainName + "”."};
    m_with.pendingChanges.hideThemeIcon(themeID, fileName);
    return Done{};
}

/// Where the icon at a place of the shown row stands in what is recorded, which may hold what could not be
/// shown. An error when it does not stand there any more, since another one would be taken for it.
Result<int> ApplicationsCoordinator::recordedPlace(const ApplicationRow& row, int index) {
    const auto shown = row.displayPaths();
    const auto recorded = recordedIcons(row.app.bundleID).displayPaths();
    const auto place = static_cast<std::size_t>(index);
    if (place >= shown.size()) {
        if (m_with.themes.themeIconsFor(row.app.bundleID) != row.app.themeIcons)
            return changedMeanwhile(row);
        return static_cast<int>(recorded.size() + place - shown.size());
    }
    const auto found = std::ranges::find(recorded, shown[place]);
    if (found == recorded.end() || !m_with.mac.files.exists(shown[place]))
        return changedMeanwhile(row);
    return static_cast<int>(found - recorded.begin());
}

/// Brings the row up to date.
Error ApplicationsCoordinator::changedMeanwhile(const ApplicationRow& row) {
    readAnew({.icons = {}, .themeIcons = {row.app.bundleID}});
    readAnew({.icons = {row.app.bundleID}, .themeIcons = {}});
    return {"The icons of “" + row.plainName + "” have just changed. Look again, and repeat it."};
}

} // namespace tavrik
