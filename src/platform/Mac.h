#pragma once

namespace tavrik {

class Alerts;
class Bookmarks;
class Clock;
class DistributedNotifications;
class FileManager;
class LocalNotifications;
class Machine;
class Random;
class Tools;
class UserDefaults;
class Volume;
class Workspace;

/// Everything the program asks of the operating system. The ports belong to the adapter that gathers them and
/// outlive every manager; a test may put a decorator in the place of any one.
struct Mac {
    Volume& volume;
    FileManager& files;
    Bookmarks& bookmarks;
    Workspace& workspace;
    Tools& tools;
    DistributedNotifications& notifications;
    UserDefaults& defaults;
    Machine& machine;
    Clock& clock;
    Alerts& alerts;
    Random& random;
    LocalNotifications& localNotifications;
};

} // namespace tavrik
