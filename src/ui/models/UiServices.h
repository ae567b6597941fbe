#pragma once

namespace tavrik {

class AppDelegate;
class Background;
class EndNotice;
class Images;
class MacHost;
class Notices;
class RemoteServices;
class SharedCoordinators;
struct Managers;

/// What the window's models work with.
struct UiServices {
    MacHost& host;
    Managers& managers;
    SharedCoordinators& coordinators;
    AppDelegate& delegate;
    Background& background;
    Images& images;
    Notices& notices;
    EndNotice& endNotice;
    RemoteServices& remote;
};

} // namespace tavrik
