#include "cli/ListCommands.h"

#include "cli/AppLookup.h"
#include "cli/Companion.h"
#include "cli/Json.h"
#include "cli/Staged.h"
#include "cli/Table.h"
#include "icons/IconShapeAnalysis.h"
#include "icons/list/CatalogueReader.h"
#include "icons/list/CheckedIcons.h"
#include "icons/list/RowDescription.h"
#include "icons/list/RowOrder.h"
#include "platform/Mac.h"
#include "system/Trimmed.h"

#include <QObject>

#include <future>
#include <memory>
#include <optional>
#include <utility>

namespace tavrik {

namespace {

StagedChanges stagedChanges(Companion& companion) {
    auto staged = lookAtStaged(companion);
    if (!staged)
        companion.complain(staged.error().description);
    return staged ? std::move(staged->changes) : StagedChanges();
}

/// As the rows would show them, staged changes included; without those when they cannot be read.
void addIcons(Companion& companion, std::vector<ApplicationInfo>& apps) {
    const StagedChanges changes = stagedChanges(companion);
    companion.onMain([&] {
        for (ApplicationInfo& app : apps)
            setIconRow(app, companion.managers().pendingChanges.iconRow(app.bundleID, changes));
    });
}

/// Looks at the icons that were not looked at before, and waits for it.
void addShapes(Companion& companion, std::vector<ApplicationRow>& rows) {
    std::vector<MacPath> apps;
    for (const ApplicationRow& row : rows)
        apps.push_back(row.app.path);
    std::unique_ptr<IconShapeAnalysis> shapes;
    QObject context;
    std::promise<void> finished;
    companion.onMain([&] {
        shapes = std::make_unique<IconShapeAnalysis>(companion.managers().icons, companion.managers().settings);
        shapes->analyse(apps, &context, [](double) {}, [&finished] { finished.set_value(); });
    });
    finished.get_future().wait();
    companion.onMain([&] {
        for (ApplicationRow& row : rows)
            row.isSquircle = shapes->isSquircle(row.app.path);
        shapes.reset();
    });
}

/// All of them; nothing when there are none.
std::optional<std::vector<ApplicationInfo>> allApps(Companion& companion) {
    std::vector<ApplicationInfo> apps = companion.managers().apps.loadApplications();
    if (apps.empty())
        return std::nullopt;
    addIcons(companion, apps);
    return apps;
}

/// Those that the window's list shows, as it does; nothing when Launchpad shows none at all.
std::optional<std::vector<ApplicationInfo>> filteredApps(Companion& companion, const ListFilter& filter) {
    Managers& managers = companion.managers();
    managers.themes.loadThemes();
    const CatalogueReading reading = CatalogueReader(managers.apps, managers.dock, managers.themes).readNow();
    if (reading.apps.empty())
        return std::nullopt;
    const FontReplacer& fonts = managers.fonts.fontReplacer();
    const StagedChanges staged = stagedChanges(companion);
    std::vector<ApplicationRow> rows;
    for (const ApplicationInfo& app : reading.apps)
        rows.push_back(describedRow(app, reading, fonts, managers.unsupported));
    companion.onMain([&] {
        for (ApplicationRow& row : rows) {
            IconRow icons = recordedIcons(row.app.bundleID, staged, managers.pendingChanges, managers.settings);
            setIconRow(row.app, checkedIcons(companion.host().mac().files, std::move(icons),
                                             row.app.themeIcons.size(), row.app.name)
                                    .row);
        }
    });
    if (filter.showOnlyNonSquircle)
        addShapes(companion, rows);
    sortRows(rows, SortOrder::ascending);
    const RowFilter shown(filter, fonts.folded(trimmed(filter.searchText)));
    std::vector<ApplicationInfo> apps;
    for (ApplicationRow& row : rows) {
        if (shown.shows(row))
            apps.push_back(std::move(row.app));
    }
    return apps;
}

} // namespace

ExitCode AppsCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::reading); opened != ExitCode::done)
        return opened;
    Managers& managers = companion.managers();
    const auto apps = isFiltered ? filteredApps(companion, filter) : allApps(companion);
    if (!apps)
        return companion.fail(kNoCatalogue);
    if (json) {
        companion.say(jsonText(toJson(*apps)));
        return ExitCode::done;
    }
    if (apps->empty()) {
        companion.say(filter.showUnsupportedApps
                          ? "No application matches."
                          : "No application matches. \"--unsupported\" shows the others too.");
        return ExitCode::done;
    }
    const auto mappings = managers.settings.getAllMappings();
    Table table({"Name", "Identifier", "Path", "Remarks"});
    for (const ApplicationInfo& app : *apps) {
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
