#pragma once

#include "platform/Path.h"

#include <QImage>

#include <string>
#include <vector>

namespace tavrik {

struct RunningApplication {
    std::string bundleID;
    std::string name;

    bool operator==(const RunningApplication&) const = default;
};

/// The workspace service: icons of files and running applications. Any thread, one at a time for changes.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The icon the Mac shows for a path: its custom icon, else the bundle's own, else a generic one. Never
    /// null. At the largest size there is.
    virtual QImage icon(const MacPath& path) const = 0;

    /// Gives a file or folder a custom icon, in all usual sizes. False when it could not be stored; an earlier
    /// custom icon may then be gone.
    [[nodiscard]] virtual bool setIcon(const MacPath& path, const QImage& icon) = 0;

    /// Takes the custom icon away. True when there is none afterwards.
    virtual bool clearIcon(const MacPath& path) = 0;

    virtual std::vector<RunningApplication> runningApplications() const = 0;

    /// Asks every running instance to quit, as from its menu: it may ask the person about unsaved documents,
    /// and may stay. False when it could not be asked.
    [[nodiscard]] virtual bool askToQuit(const std::string& bundleID) = 0;

    /// Asks the system to end every running instance at once. False when it could not be asked.
    [[nodiscard]] virtual bool forceTerminate(const std::string& bundleID) = 0;
};

} // namespace tavrik
