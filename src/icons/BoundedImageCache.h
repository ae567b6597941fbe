#pragma once

#include "platform/Path.h"

#include <QImage>

#include <cstddef>
#include <list>
#include <optional>
#include <unordered_map>

namespace tavrik {

/// Pictures by path under two limits, of their number and of their bytes. What was not looked at for the
/// longest time goes first; a picture that alone exceeds the bytes is not kept. Not locked.
class BoundedImageCache {
public:
    BoundedImageCache(std::size_t countLimit, std::size_t totalCostLimit);

    /// Counts as a look.
    std::optional<QImage> find(const MacPath& path);
    void insert(const MacPath& path, const QImage& image);
    void remove(const MacPath& path);
    void clear();

    std::size_t count() const;
    /// Bytes of the pixels of all that is kept.
    std::size_t totalCost() const;

private:
    struct Entry {
        MacPath path;
        QImage image;
    };

    void evict();

    const std::size_t m_countLimit;
    const std::size_t m_totalCostLimit;
    std::size_t m_totalCost = 0;
    std::list<Entry> m_entries; ///< the last looked at first
    std::unordered_map<std::string, std::list<Entry>::iterator> m_places;
};

} // namespace tavrik
