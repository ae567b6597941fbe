#pragma once

namespace tavrik {

class AppManager;
class BackupManager;
class DatabaseManager;
class DockManager;
class FontManager;
class HiddenThemeIcons;
class IconCache;
class IconStore;
class IconTransfer;
class LaunchpadManager;
class NotificationCenter;
class PendingChangesManager;
class ProgressOverlayManager;
class SettingsManager;
class TavrikAppManager;
class ThemeManager;
struct Mac;

/// What an apply works with.
struct ApplyServices {
    Mac& mac;
    SettingsManager& settings;
    DatabaseManager& database;
    DockManager& dock;
    LaunchpadManager& launchpad;
    TavrikAppManager& wrappers;
    FontManager& fonts;
    IconStore& icons;
    IconCache& iconCache;
    IconTransfer& transfer;
    HiddenThemeIcons& hiddenThemeIcons;
    AppManager& apps;
    PendingChangesManager& pendingChanges;
    BackupManager& backups;
    ThemeManager& themes;
    NotificationCenter& notifications;
    ProgressOverlayManager& progress;
};

} // namespace tavrik
