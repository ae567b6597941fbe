#pragma once

#include "backups/BackupManager.h"
#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyPipeline.h"
#include "changes/apply/ProgressOverlayManager.h"
#include "fonts/FontManager.h"
#include "icons/HiddenThemeIcons.h"
#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/NotificationCenter.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/IconManager.h"
#include "system/LaunchpadManager.h"
#include "themes/ThemeManager.h"
#include "wrappers/IconSettingsManager.h"
#include "wrappers/TavrikAppManager.h"

namespace tavrik {

/// Every manager, built once in this order and destroyed in reverse. Each gets what it needs by reference, so
/// that a test builds the whole program on a volume of its own, and two can live side by side.
struct Managers {
    explicit Managers(Mac& mac, SettingsManager::Use use = SettingsManager::Use::writing);

    NotificationCenter notificationCenter;
    SettingsManager settings;
    UnsupportedAppsManager unsupported;
    IconManager icons;
    DatabaseManager launchpadDatabase;
    DockManager dock;
    LaunchpadManager launchpad;
    IconSettingsManager iconSettings;
    TavrikAppManager wrappers;
    FontManager fonts;
    IconCache iconCache;
    IconStore iconStore;
    HiddenThemeIcons hiddenThemeIcons;
    IconTransfer iconTransfer;
    AppManager apps;
    PendingChangesManager pendingChanges;
    ThemeManager themes;
    BackupManager backups;
    ProgressOverlayManager progress;
    ApplyServices applyServices;
    ApplyPipeline apply;
};

} // namespace tavrik
