#include "cli/AppLookup.h"

#include <algorithm>
#include <numeric>

namespace tavrik {

namespace {

std::string folded(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    return text;
}

/// Levenshtein's distance in bytes.
std::size_t distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t substituted = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, substituted});
        }
    }
    return row[b.size()];
}

/// How far what was typed is from an application: by its identifier, that identifier's last part, or its name.
std::size_t distance(const std::string& typed, const ApplicationInfo& app) {
    const std::string identifier = folded(app.bundleID);
    const std::string lastPart = identifier.substr(identifier.rfind('.') + 1);
    return std::min(
        {distance(typed, identifier), distance(typed, lastPart) + 1, distance(typed, folded(app.name))});
}

} // namespace

Result<ApplicationInfo> findApp(const std::vector<ApplicationInfo>& apps, const std::string& bundleID) {
    for (const ApplicationInfo& app : apps) {
        if (app.bundleID == bundleID)
            return app;
    }
    if (apps.empty()) {
        return Error{
            "The Launchpad database lists no application, or could not be read; it may be locked. Close other "
            "programs that use it and try again."};
    }
    const std::string typed = folded(bundleID);
    std::vector<std::pair<std::size_t, std::string>> nearest;
    for (const ApplicationInfo& app : apps) {
        const std::size_t far = distance(typed, app);
        if (far <= std::max<std::size_t>(3, typed.size() / 3))
            nearest.emplace_back(far, app.bundleID);
    }
    std::sort(nearest.begin(), nearest.end());
    std::string hint;
    for (std::size_t i = 0; i < std::min<std::size_t>(3, nearest.size()); ++i)
        hint += (i == 0 ? " Did you mean " : " or ") + nearest[i].second;
    hint += hint.empty() ? " \"tavrikctl apps\" lists what there is." : "?";
    return Error{"Launchpad shows no application with the identifier \"" + bundleID + "\"." + hint};
}

std::string refusal(const ApplicationInfo& app, bool isListedUnsupported) {
    if (app.isIOSApp) {
        return app.name +
               " is an iOS app: the system draws its icon from inside the bundle, and a wrapper cannot change "
               "that. Applications made for the Mac can be restyled.";
    }
    if (isListedUnsupported)
        return app.name + " (" + app.bundleID +
               ") does not work through a wrapper, so it is not restyled. Other applications are.";
    if (app.isUnsupportedApp) {
        return app.name + " lies at " + app.path.string() +
               ", outside the standard places. Move it to /Applications or ~/Applications, and it can be "
               "restyled.";
    }
    return {};
}

} // namespace tavrik
