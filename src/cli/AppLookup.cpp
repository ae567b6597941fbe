#include "cli/AppLookup.h"

#include "cli/NearestNames.h"

#include <algorithm>

namespace tavrik {

namespace {

/// How far what was typed is from an application: by its identifier, that identifier's last part, or its name.
std::size_t distance(const std::string& typed, const ApplicationInfo& app) {
    const std::string lastPart = app.bundleID.substr(app.bundleID.rfind('.') + 1);
    return std::min(
        {nameDistance(typed, app.bundleID), nameDistance(typed, lastPart) + 1, nameDistance(typed, app.name)});
}

} // namespace

Result<ApplicationInfo> findApp(const std::vector<ApplicationInfo>& apps, const std::string& bundleID) {
    for (const ApplicationInfo& app : apps) {
        if (app.bundleID == bundleID)
            return app;
    }
    if (apps.empty())
        return Error{kNoCatalogue};
    std::vector<NearName> names;
    names.reserve(apps.size());
    for (const ApplicationInfo& app : apps)
        names.push_back({distance(bundleID, app), app.bundleID});
    std::string hint = hintOf(std::move(names), bundleID);
    if (hint.empty())
        hint = " \"tavrikctl apps\" lists what there is.";
    return Error{"Launchpad shows no application with the identifier \"" + bundleID + "\"." + hint};
}

} // namespace tavrik
