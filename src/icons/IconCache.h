#pragma once

#include "icons/BoundedImageCache.h"
#include "icons/IconFiles.h"
#include "platform/ConcurrentQueue.h"
#include "platform/Result.h"
#include "platform/SerialQueue.h"

#include <QImage>

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <vector>

class QObject;

namespace tavrik {

class FileManager;

/// The pictures of icon files and their thumbnails, in memory, through which every view loads them. Any thread.
///
/// Full pictures: at most 10 and 100 MiB; thumbnails: at most 500 and 20 MiB. A null picture means none.
/// Completions run on the main queue and are dropped when their context, alive during the call, is gone by
/// then. What is written to disk are thumbnails only, beside their icon; they are made anew when missing, cut
/// or of another size, so a failed write or a kill costs nothing but time. A picture that is not named like the
/// store's icons, "icon_3.png", has its thumbnails in memory alone: in a theme's folder, where files are named
/// after applications, theirs would pass for icons.
class IconCache {
public:
    explicit IconCache(FileManager& files);
    /// Waits for what is under way and drops what is queued, completions included.
    ~IconCache();
    IconCache(const IconCache&) = delete;
    IconCache& operator=(const IconCache&) = delete;

    /// From memory, or read and decoded on the calling thread: never on the main one for a list.
    QImage loadImage(const MacPath& path);
    /// On `fileQueue`.
    void loadImage(const MacPath& path, QObject* context, std::function<void(const QImage&)> completion);
    /// Several at once; the answer has one picture per path, in the same order.
    void loadImages(const std::vector<MacPath>& paths, QObject* context,
                    std::function<void(const std::vector<QImage>&)> completion);

    /// From memory, or from its file beside the icon. When that is missing its making is scheduled, and the
    /// full picture is the answer meanwhile.
    QImage thumbnail(const MacPath& path, ThumbnailSize size);

    /// Makes both thumbnail files of an icon on `thumbnailQueue`, once at a time for one icon. Returns at once.
    void generateThumbnails(const MacPath& path);

    /// Puts the picture of an icon that was just written into memory, so that it need not be read back.
    void insert(const MacPath& path, const QImage& image);

    /// Forgets the picture and the thumbnails, in memory, and sees to it that a reading or making that is under
    /// way brings neither back. To be called after the icon's file was removed or renamed and before its
    /// thumbnail files are.
    void remove(const MacPath& path);

    /// Waits until the thumbnails that are scheduled by now are made. Not from the main queue's works.
    void waitForThumbnails();

private:
    std::optional<QImage> find(BoundedImageCache& cache, const MacPath& place, std::uint64_t& generation);
    void keep(BoundedImageCache& cache, const MacPath& place, const QImage& image, std::uint64_t generation);
    QImage readIcon(const MacPath& path) const;
    QImage readThumbnailOf(const MacPath& path, ThumbnailSize size) const;

    struct Making;
    std::optional<Making> drawThumbnails(const MacPath& path);
    void makeThumbnails(const MacPath& path, std::uint64_t task);
    Status commit(const MacPath& path, const Making& making);

    FileManager& m_files;
    std::mutex m_cacheLock; ///< guards both caches and the generation
    BoundedImageCache m_cache;
    BoundedImageCache m_thumbnailCache;
    std::uint64_t m_generation = 0; ///< counts removals: what was read before one is not kept after it

    /// Guards the next two; held while a making is committed, so that a removal comes before or after the
    /// whole. The cache lock may be taken inside, never the other way round.
    std::mutex m_tasksLock;
    std::map<MacPath, std::uint64_t> m_thumbnailGenerationTasks; ///< icon to the number of its making
    std::uint64_t m_lastTask = 0;

    std::atomic<bool> m_stopping = false;
    // The queues go first, the one that feeds the other before it.
    SerialQueue m_thumbnailQueue{"com.tavrik.thumbnailGen"};
    ConcurrentQueue m_fileQueue{"com.tavrik.iconCache"};
};

} // namespace tavrik
