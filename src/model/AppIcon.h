#pragma once

#include "platform/Path.h"

#include <QImage>

#include <functional>
#include <memory>

namespace tavrik {

/// An application's own icon, decoded when it is first looked at and then kept. Copies share the decoded image.
/// `image()` may be called from any thread and blocks while the file is read, so a view calls it off the main
/// thread.
class AppIcon {
public:
    AppIcon() = default;
    AppIcon(MacPath path, std::function<QImage(const MacPath&)> reader);

    /// The bundle that the icon is read from.
    const MacPath& path() const;

    /// Null only for a default-made icon.
    QImage image() const;

    bool operator==(const AppIcon& other) const { return path() == other.path(); }

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace tavrik
