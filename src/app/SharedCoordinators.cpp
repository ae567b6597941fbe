#include "app/SharedCoordinators.h"

#include "app/Managers.h"
#include "changes/ReloadNotifications.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"

#include <array>

namespace tavrik {

namespace {

ListServices servicesOf(Managers& managers, FilterSettingsManager& filters, IconShapeAnalysis& shapes) {
    return {.mac = managers.applyServices.mac,
            .settings = managers.settings,
            .apps = managers.apps,
            .icons = managers.icons,
            .fonts = managers.fonts.fontReplacer(),
            .unsupported = managers.unsupported,
            .pendingChanges = managers.pendingChanges,
            .themes = managers.themes,
            .notifications = managers.notificationCenter,
            .filters = filters,
            .shapes = shapes};
}

} // namespace

SharedCoordinators::SharedCoordinators(Managers& managers)
    : filters(managers.notificationCenter),
      shapes(managers.icons, managers.settings),
      userApps(LoadingMode::userApps, servicesOf(managers, filters, shapes)),
      systemApps(LoadingMode::systemApps, servicesOf(managers, filters, shapes)),
      m_reader(managers.apps, managers.dock, managers.themes) {
    const auto observe = [&](std::string_view name, std::function<void()> heard) {
        m_observations.push_back(managers.notificationCenter.observe(std::string(name), std::move(heard)));
    };
    for (const std::string_view name :
         {kReloadApplicationsAfterApply, kUpdateApplicationStateAfterApply, kReloadApplicationsAfterDiscard})
        observe(name, [this] { refresh(); });
    observe(kReloadApplicationsAfterBackupRestore, [this] {
        log("📋 Reloading applications after backup restore");
        refresh();
    });
    // Before the first reading nothing is shown yet that they could change.
    observe(kThemesUpdated, [this] {
        if (userApps.isLoaded())
            refresh();
    });
}

void SharedCoordinators::refresh() {
    MainQueue::async(&m_mainThread, [this] {
        m_reader.read([this](const CatalogueReading& reading) {
            userApps.load(reading);
            systemApps.load(reading);
        });
    });
}

} // namespace tavrik
