#include "cli/ListCommands.h"

#include "cli/AppLookup.h"
#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/Staged.h"
#include "cli/Table.h"

namespace tavrik {

namespace {

/// As the rows would show them, staged changes included; without those when they cannot be read.
void addIcons(Companion& companion, std::vector<ApplicationInfo>& apps) {
    const auto staged = lookAtStaged(companion);
    if (!staged)
        companion.complain(staged.error().description);
    const StagedChanges changes = staged ? staged->changes : StagedChanges();
    companion.onMain([&] {
        for (ApplicationInfo& app : apps)
            setIconRow(app, companion.managers().pendingChanges.iconRow(app.bundleID, changes));
    });
}

} // namespace

ExitCode AppsCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::reading); opened != ExitCode::done)
        return opened;
    Managers& managers = companion.managers();
    std::vector<ApplicationInfo> apps = managers.apps.loadApplications();
    if (apps.empty())
        return companion.fail(kNoCatalogue);
    addIcons(companion, apps);
    if (json) {
        companion.say(jsonText(toJson(apps)));
        return ExitCode::done;
    }
    const auto mappings = managers.settings.getAllMappings();
    Table table({"Name", "Identifier", "Path", "Remarks"});
    for (const ApplicationInfo& app : apps) {
        std::string remarks;
        const auto remark = [&](bool holds, const char* words) {
            if (holds)
                remarks += (remarks.empty() ? "" : ", ") + std::string(words);
        };
        remark(mappings.contains(app.bundleID), "restyled");
        remark(!app.permanentIconPaths.empty(), "has icons");
        remark(!app.pendingAdditionPaths.empty(), "icons staged");
        remark(app.isIOSApp, "iOS app");
        remark(app.isUnsupportedApp, "cannot be restyled");
        table.add({app.name, app.bundleID, app.path.string(), remarks});
    }
    companion.say(table.text());
    return ExitCode::done;
}

ExitCode DockCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::reading); opened != ExitCode::done)
        return opened;
    if (!companion.managers().dock.readDockPlist())
        return companion.fail("The Dock's preferences cannot be read.");
    const std::vector<DockApp> apps = companion.managers().dock.dockApps();
    if (json) {
        companion.say(jsonText(toJson(apps)));
        return ExitCode::done;
    }
    Table table({"Identifier", "Path"});
    for (const DockApp& app : apps)
        table.add({app.bundleID, app.path.empty() ? "?" : app.path.string()});
    companion.say(table.text());
    return ExitCode::done;
}

ExitCode WrapperListCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::reading); opened != ExitCode::done)
        return opened;
    const auto mappings = companion.managers().settings.getAllMappings();
    if (json) {
        companion.say(jsonText(toJson(mappings)));
        return ExitCode::done;
    }
    if (mappings.empty()) {
        companion.say("No application has a wrapper. \"tavrikctl wrapper create BUNDLE-ID IMAGE\" makes one.");
        return ExitCode::done;
    }
    Table table({"Identifier", "Original row", "Wrapper row", "Since"});
    for (const auto& [bundleID, mapping] : mappings) {
        table.add({bundleID, std::to_string(static_cast<std::int64_t>(mapping.originalRowID)),
                   std::to_string(static_cast<std::int64_t>(mapping.tavrikRowID)),
                   isoText(mapping.createdDate)});
    }
    companion.say(table.text());
    return ExitCode::done;
}

} // namespace tavrik
