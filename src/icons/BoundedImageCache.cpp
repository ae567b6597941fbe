#include "icons/BoundedImageCache.h"

namespace tavrik {

namespace {

std::size_t costOf(const QImage& image) {
    return static_cast<std::size_t>(image.sizeInBytes());
}

} // namespace

BoundedImageCache::BoundedImageCache(std::size_t countLimit, std::size_t totalCostLimit)
    : m_countLimit(countLimit),
      m_totalCostLimit(totalCostLimit) {}

std::optional<QImage> BoundedImageCache::find(const MacPath& path) {
    const auto place = m_places.find(path.string());
    if (place == m_places.end())
        return std::nullopt;
    m_entries.splice(m_entries.begin(), m_entries, place->second);
    return place->second->image;
}

void BoundedImageCache::insert(const MacPath& path, const QImage& image) {
    remove(path);
    if (image.isNull() || costOf(image) > m_totalCostLimit)
        return;
    m_entries.push_front({path, image});
    m_places[path.string()] = m_entries.begin();
    m_totalCost += costOf(image);
    evict();
}

void BoundedImageCache::remove(const MacPath& path) {
    const auto place = m_places.find(path.string());
    if (place == m_places.end())
        return;
    m_totalCost -= costOf(place->second->image);
    m_entries.erase(place->second);
    m_places.erase(place);
}

void BoundedImageCache::clear() {
    m_entries.clear();
    m_places.clear();
    m_totalCost = 0;
}

std::size_t BoundedImageCache::count() const {
    return m_entries.size();
}

std::size_t BoundedImageCache::totalCost() const {
    return m_totalCost;
}

void BoundedImageCache::evict() {
    while (m_entries.size() > m_countLimit || m_totalCost > m_totalCostLimit) {
        const MacPath oldest = m_entries.back().path;
        remove(oldest);
    }
}

} // namespace tavrik
