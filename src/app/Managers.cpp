#include "app/Managers.h"

namespace tavrik {

Managers::Managers(Mac& mac)
    : settings(mac),
      icons(mac),
      launchpadDatabase(mac, settings, icons, unsupported),
      dock(mac, settings),
      launchpad(mac, dock),
      iconSettings(mac),
      wrappers(mac, settings, launchpadDatabase, dock, icons, launchpad, iconSettings),
      apps(launchpadDatabase, settings) {}

} // namespace tavrik
