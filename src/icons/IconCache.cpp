#include "icons/IconCache.h"

#include "icons/ThumbnailFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/PathRules.h"
#include "platform/Png.h"

#include <array>
#include <cerrno>
#include <memory>
#include <string>
#include <utility>

namespace tavrik {

namespace {

constexpr std::size_t kPictures = 10;
constexpr std::size_t kPictureBytes = 100u << 20;
constexpr std::size_t kThumbnails = 500;
constexpr std::size_t kThumbnailBytes = 20u << 20;
constexpr std::size_t kLargestIconFile = 256u << 20;
constexpr int kExpectedSide = 1000; // pixels

constexpr std::array kSizes{ThumbnailSize::x1, ThumbnailSize::x2};

bool hasThumbnailFiles(const MacPath& icon) {
    return iconIndex(icon.name()).has_value();
}

bool isMissing(const Error& error) {
    return error.code == ENOENT || error.code == ENOTDIR;
}

} // namespace

/// Both thumbnails of an icon, drawn and not yet written.
struct IconCache::Making {
    struct Thumbnail {
        ThumbnailSize size;
        QImage image;
        Result<Bytes> file;
    };

    std::vector<Thumbnail> thumbnails;
};

IconCache::IconCache(FileManager& files)
    : m_files(files),
      m_cache(kPictures, kPictureBytes),
      m_thumbnailCache(kThumbnails, kThumbnailBytes) {}

IconCache::~IconCache() {
    m_stopping = true;
}

QImage IconCache::loadImage(const MacPath& path) {
    std::uint64_t generation = 0;
    if (auto kept = find(m_cache, path, generation))
        return *kept;
    QImage image = readIcon(path);
    keep(m_cache, path, image, generation);
    return image;
}

void IconCache::loadImage(const MacPath& path, QObject* context,
                          std::function<void(const QImage&)> completion) {
    loadImages({path}, context, [completion = std::move(completion)](const std::vector<QImage>& images) {
        completion(images.front());
    });
}

void IconCache::loadImages(const std::vector<MacPath>& paths, QObject* context,
                           std::function<void(const std::vector<QImage>&)> completion) {
    struct Request {
        QPointer<QObject> context;
        std::function<void(const std::vector<QImage>&)> completion;
        std::vector<QImage> images;
        std::atomic<std::size_t> missing;
    };

    if (paths.empty()) {
        MainQueue::async(context, [completion = std::move(completion)] { completion({}); });
        return;
    }
    const auto request = std::make_shared<Request>();
    request->context = context;
    request->completion = std::move(completion);
    request->images.resize(paths.size());
    request->missing = paths.size();
    for (std::size_t i = 0; i < paths.size(); ++i) {
        m_fileQueue.async([this, request, i, path = paths[i]] {
            if (m_stopping)
                return;
            request->images[i] = loadImage(path);
            if (--request->missing == 0)
                MainQueue::async(request->context, [request] { request->completion(request->images); });
        });
    }
}

QImage IconCache::thumbnail(const MacPath& path, ThumbnailSize size) {
    const MacPath place = thumbnailPath(path, size);
    std::uint64_t generation = 0;
    if (auto kept = find(m_thumbnailCache, place, generation))
        return *kept;
    if (QImage read = readThumbnailOf(path, size); !read.isNull()) {
        keep(m_thumbnailCache, place, read, generation);
        return read;
    }
    QImage full = loadImage(path);
    if (!full.isNull())
        generateThumbnails(path);
    return full;
}

void IconCache::generateThumbnails(const MacPath& path) {
    std::uint64_t task = 0;
    {
        const std::lock_guard lock(m_tasksLock);
        if (!m_thumbnailGenerationTasks.try_emplace(path, m_lastTask + 1).second)
            return;
        task = ++m_lastTask;
    }
    m_thumbnailQueue.async([this, path, task] {
        if (!m_stopping)
            makeThumbnails(path, task);
    });
}

void IconCache::insert(const MacPath& path, const QImage& image) {
    const std::lock_guard lock(m_cacheLock);
    m_cache.insert(path, image);
}

void IconCache::remove(const MacPath& path) {
    {
        const std::lock_guard lock(m_tasksLock);
        m_thumbnailGenerationTasks.erase(path);
    }
    const std::lock_guard lock(m_cacheLock);
    ++m_generation;
    m_cache.remove(path);
    for (const ThumbnailSize size : kSizes)
        m_thumbnailCache.remove(thumbnailPath(path, size));
}

void IconCache::waitForThumbnails() {
    m_thumbnailQueue.sync([] {});
}

/// Also the generation that a picture read from now on belongs to.
std::optional<QImage> IconCache::find(BoundedImageCache& cache, const MacPath& place,
                                      std::uint64_t& generation) {
    const std::lock_guard lock(m_cacheLock);
    generation = m_generation;
    return cache.find(place);
}

void IconCache::keep(BoundedImageCache& cache, const MacPath& place, const QImage& image,
                     std::uint64_t generation) {
    const std::lock_guard lock(m_cacheLock);
    if (generation == m_generation)
        cache.insert(place, image);
}

QImage IconCache::readIcon(const MacPath& path) const {
    if (isPendingIconPath(path))
        log("📋 Loading pending icon from: " + path.string());
    const auto data = m_files.read(path, kLargestIconFile);
    if (!data && isMissing(data.error())) {
        log("IconCache: File doesn't exist at " + path.string());
        return QImage();
    }
    QImage image = data ? png::decode(*data) : QImage();
    if (image.isNull())
        log("IconCache: Failed to load icon from " + path.string());
    else if (image.width() < kExpectedSide || image.height() < kExpectedSide)
        log("Warning: Icon at " + path.string() + " is smaller than expected: " +
            std::to_string(image.width()) + "x" + std::to_string(image.height()));
    return image;
}

/// The icon is looked for first: a removal takes it before its thumbnails, whose files tell nothing any more
/// once it is gone.
QImage IconCache::readThumbnailOf(const MacPath& path, ThumbnailSize size) const {
    if (!hasThumbnailFiles(path) || !m_files.exists(path))
        return QImage();
    return readThumbnail(m_files, thumbnailPath(path, size), size);
}

std::optional<IconCache::Making> IconCache::drawThumbnails(const MacPath& path) {
    if (!m_files.exists(path)) {
        log("IconCache: Original file doesn't exist at " + path.string());
        return std::nullopt;
    }
    std::uint64_t generation = 0;
    const auto kept = find(m_cache, path, generation);
    const QImage picture = kept ? *kept : readIcon(path);
    if (picture.isNull())
        return std::nullopt;
    // The small one is half of the large one, which a square fills wholly: much less to look at than the
    // picture.
    const QImage large = drawThumbnail(picture, ThumbnailSize::x2);
    const QImage small =
        drawThumbnail(picture.width() == picture.height() ? large : picture, ThumbnailSize::x1);
    Making making;
    making.thumbnails.push_back({ThumbnailSize::x1, small, png::encode(small)});
    making.thumbnails.push_back({ThumbnailSize::x2, large, png::encode(large)});
    return making;
}

void IconCache::makeThumbnails(const MacPath& path, std::uint64_t task) {
    const auto making = drawThumbnails(path);
    Status written = Done{};
    {
        const std::lock_guard lock(m_tasksLock);
        const auto ours = m_thumbnailGenerationTasks.find(path);
        if (ours == m_thumbnailGenerationTasks.end() || ours->second != task)
            return; // the icon was removed meanwhile
        m_thumbnailGenerationTasks.erase(ours);
        if (!making)
            return;
        written = commit(path, *making);
    }
    if (!written)
        log("IconCache: Failed to save thumbnails of " + path.string() + ": " + written.error().description);
    else if (hasThumbnailFiles(path))
        log("✅ Thumbnails created at: " + path.string());
}

/// With the tasks' lock held. In memory they are even when the disk refuses them.
Status IconCache::commit(const MacPath& path, const Making& making) {
    {
        const std::lock_guard lock(m_cacheLock);
        for (const auto& [size, image, file] : making.thumbnails)
            m_thumbnailCache.insert(thumbnailPath(path, size), image);
    }
    if (!hasThumbnailFiles(path))
        return Done{};
    for (const auto& [size, image, file] : making.thumbnails) {
        if (!file)
            return file.error();
        if (Status written = writeThumbnail(m_files, thumbnailPath(path, size), *file); !written)
            return written;
    }
    return Done{};
}

} // namespace tavrik
