#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"

#include <QImage>

#include <cstddef>
#include <cstdint>
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

    /// The same at the smallest size that is offered, can be decoded, and has at least so many pixels a side,
    /// else at the largest: quick where the icon file has small representations. Never null. Any thread; reads
    /// files.
    QImage appIcon(const MacPath& atPath, int atLeast) const;

    /// The icon that the Mac shows for a bundle: its custom icon, else its own, at least so large where there
    /// is such a one. Never null. Any thread; reads files.
    QImage shownIcon(const MacPath& atPath, int atLeast) const;

    /// What an application's icon is recognised by without decoding it.
    struct IconData {
        std::uint64_t byteCount = 0; ///< of the icon file, or of the bitmap as PNG when there is none
        Bytes beginning;             ///< its first bytes
    };

    /// Of the file, or else the bitmap, that `appIcon` shows, as far as the beginning of a file tells that it
    /// can be decoded. The bitmap as PNG, since its pixels begin with transparent ones in nearly every icon.
    /// Any thread; reads files.
    IconData appIconData(const MacPath& atPath, std::size_t beginningBytes) const;

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
