#include "themes/ThemeCoverage.h"

#include <algorithm>
#include <map>

namespace tavrik {

ThemeCoverage coverageOf(const std::vector<ThemeIcon>& icons, const std::set<std::string>& hidden,
                         const std::vector<ApplicationInfo>& apps) {
    std::map<std::string, const ThemeIcon*> left;
    for (const ThemeIcon& icon : icons)
        left.emplace(icon.bundleID, &icon);

    ThemeCoverage coverage;
    for (const ApplicationInfo& app : apps) {
        const bool isRestylable = !app.isIOSApp && !app.isUnsupportedApp;
        const auto icon = left.find(app.bundleID);
        if (icon == left.end()) {
            if (isRestylable)
                coverage.lacking.push_back(app);
            continue;
        }
        if (!isRestylable)
            coverage.notRestylable.push_back(app);
        else if (hidden.contains(icon->second->file.name()))
            coverage.hidden.push_back(app);
        else
            coverage.covered.push_back(app);
        left.erase(icon);
    }
    for (const auto& [bundleID, icon] : left)
        coverage.withoutApplication.push_back(*icon);
    std::ranges::sort(coverage.withoutApplication, {}, [](const ThemeIcon& icon) { return icon.file.name(); });
    return coverage;
}

} // namespace tavrik
