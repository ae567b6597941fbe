#pragma once

#include "platform/Path.h"

#include <QImage>

#include <optional>

namespace tavrik {

struct Mac;

/// Reads applications' own icons, squares pictures, and sets custom icons.
class IconManager {
public:
    explicit IconManager(Mac& mac);

    /// The best picture of a bundle at its full size: the first of its icon files that loads, else the
    /// workspace's icon. Never null. Any thread; reads files.
    QImage appIcon(const MacPath& atPath) const;

    /// The picture fitted and centred in a new transparent square of 1024 pixels, in sRGB; an odd remainder
    /// goes to the right and the bottom. Nothing, with a log line, when the bitmap cannot be made. Pure; any
    /// thread.
    static std::optional<QImage> squareIcon(const QImage& from);

    /// Sets a custom icon on a file or bundle, with up to three attempts 0.1 s apart. Background thread only:
    /// waits. False leaves the path without a custom icon.
    [[nodiscard]] bool setCustomIcon(const QImage& icon, const MacPath& forPath);

private:
    Mac& m_mac;
};

} // namespace tavrik
