#include "app/Managers.h"

#include "platform/Mac.h"

namespace tavrik {

Managers::Managers(Mac& mac, SettingsManager::Use use)
    : settings(mac, use),
      icons(mac),
      launchpadDatabase(mac, settings, icons, unsupported),
      dock(mac, settings),
      launchpad(mac, dock),
      iconSettings(mac),
      wrappers(mac, settings, launchpadDatabase, dock, icons, launchpad, iconSettings),
      fonts(mac, settings, launchpadDatabase, dock),
      iconCache(mac.files),
      iconStore(mac.files, settings, iconCache),
      hiddenThemeIcons(mac.defaults),
      iconTransfer(mac.files, settings, iconStore),
      apps(launchpadDatabase, settings, wrappers, iconStore, iconCache),
      pendingChanges(mac, settings, fonts.fontReplacer(), iconStore, iconTransfer, notificationCenter),
      themes(mac, settings, apps, iconStore, hiddenThemeIcons, pendingChanges, notificationCenter),
      backups(mac, settings, launchpadDatabase, dock, pendingChanges, fonts.fontReplacer(), notificationCenter),
      progress(notificationCenter),
      applyServices{mac,
                    settings,
                    launchpadDatabase,
                    dock,
                    launchpad,
                    wrappers,
                    fonts,
                    iconStore,
                    iconCache,
                    iconTransfer,
                    hiddenThemeIcons,
                    apps,
                    pendingChanges,
                    backups,
                    themes,
                    notificationCenter,
                    progress},
      apply(applyServices) {}

} // namespace tavrik
