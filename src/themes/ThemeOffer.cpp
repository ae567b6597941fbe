#include "themes/ThemeOffer.h"

#include "changes/PendingChangesManager.h"
#include "icons/HiddenThemeIcons.h"
#include "platform/MainQueue.h"
#include "themes/ThemeManager.h"

#include <optional>
#include <utility>

namespace tavrik {

namespace {

/// The files of one theme that are not offered.
class Withheld {
public:
    Withheld(const ThemeOffer& offer, const std::string& themeID, const HiddenThemeIcons& hidden)
        : m_files(hidden.hidden(themeID)) {
        for (const ThemeIconHide& hide : offer.stagedHides) {
            if (hide.themeID == themeID)
                m_files.insert(hide.iconFileName);
        }
        m_hidden = m_files;
        if (const auto deleted = offer.stagedIconDeletions.find(themeID);
            deleted != offer.stagedIconDeletions.end())
            m_files.insert(deleted->second.begin(), deleted->second.end());
    }

    /// The application's entry in the list hides what the theme has for it in either format.
    bool hidesAllOf(const std::string& bundleID) const { return m_hidden.contains(bundleID + ".png"); }

    const std::set<std::string>& files() const { return m_files; }

private:
    std::set<std::string> m_files;
    std::set<std::string> m_hidden;
};

} // namespace

ThemeOffer ThemeManager::offer() const {
    ThemeOffer offer;
    MainQueue::sync([&] {
        const StagedChanges& staged = m_pendingChanges.staged();
        offer = {m_installedThemes, staged.pendingThemeIconHides, staged.pendingThemeIconDeletions,
                 staged.pendingThemeDeletions};
    });
    return offer;
}

std::vector<MacPath> ThemeManager::themeIconsFor(const std::string& bundleID) const {
    const ThemeOffer offered = offer();
    std::vector<MacPath> icons;
    for (const Theme& theme : offered.themes) {
        if (offered.stagedThemeDeletions.contains(theme.themeID))
            continue;
        const Withheld withheld(offered, theme.themeID, m_hidden);
        if (withheld.hidesAllOf(bundleID))
            continue;
        if (auto icon = m_library.iconFor(theme.themeID, bundleID, withheld.files()))
            icons.push_back(std::move(*icon));
    }
    return icons;
}

std::map<std::string, std::vector<MacPath>> ThemeManager::themeIcons(const ThemeOffer& offer) const {
    std::map<std::string, std::vector<MacPath>> icons;
    for (const Theme& theme : offer.themes) {
        if (offer.stagedThemeDeletions.contains(theme.themeID))
            continue;
        const Withheld withheld(offer, theme.themeID, m_hidden);
        for (ThemeIcon& icon : m_library.icons(theme.themeID)) {
            if (withheld.hidesAllOf(icon.bundleID))
                continue;
            // Without this file the theme may still have one in the other format.
            auto file = withheld.files().contains(icon.file.name())
                            ? m_library.iconFor(theme.themeID, icon.bundleID, withheld.files())
                            : std::optional(std::move(icon.file));
            if (file)
                icons[icon.bundleID].push_back(std::move(*file));
        }
    }
    return icons;
}

} // namespace tavrik
