#pragma once

namespace tavrik {

struct HealthLook;

/// The checks of the health, each with a subject of its own. They add what they find; they change nothing. A
/// check that needs what a fault hides finds nothing. Background thread; blocks on the disk.

/// The Launchpad database, the Dock's preferences, the settings and the file of what is staged; also what
/// stands in the database although nobody of ours put it there.
void checkStores(HealthLook& look);

/// What a kill left behind, and who may read the folders.
void checkFiles(HealthLook& look);

/// Wrappers, their rows in Launchpad and their links. Comes before the three that follow, since it tells of
/// which applications nothing else is to be told.
void checkWrappers(HealthLook& look);

/// Where the Dock's tiles lead, and the bookmarks that are kept for them.
void checkTiles(HealthLook& look);

/// Titles and labels against the style in effect.
void checkTitles(HealthLook& look);

/// The numbers of the icons in use, and what is kept for applications that are not installed.
void checkIcons(HealthLook& look);

/// Whether every backup opens, and whether Launchpad is arranged as in the last.
void checkBackups(HealthLook& look);

} // namespace tavrik
