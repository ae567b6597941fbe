#pragma once

#include "icons/BoundedImageCache.h"
#include "icons/IconFiles.h"
#include "platform/ConcurrentQueue.h"
#include "platform/SerialQueue.h"

#include <QImage>

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <vector>

class QObject;

namespace tavrik {

class FileManager;

/// The pictures of icon files and their thumbnails, in memory, through which every view loads them. Any thread.
///
/// Full pictures: at most 10 and 100 MiB; thumbnails: at most 500 and 20 MiB. A null picture means none.
/// Completions run on the main queue and are dropped when their context is gone. What is written to disk are
/// thumbnails only, beside their icon; they are made anew when missing, so a failed write costs nothing but
/// time.
class IconCache {
public:
    explicit IconCache(FileManager& files);
    ~IconCache();

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
    /// ... private members are the implementer's, under these names:
    FileManager& m_files;
    std::mutex m_cacheLock; ///< guards both caches and the generation
    BoundedImageCache m_cache;
    BoundedImageCache m_thumbnailCache;
    std::uint64_t m_generation = 0; ///< counts removals: what was read before one is not kept after it

    std::mutex m_tasksLock; ///< guards the set below; held while a making is committed
    std::map<MacPath, std::uint64_t> m_thumbnailGenerationTasks; ///< icon to the number of its making
    std::uint64_t m_lastTask = 0;

    SerialQueue m_thumbnailQueue{"com.tavrik.thumbnailGen"};
    ConcurrentQueue m_fileQueue{"com.tavrik.iconCache"};
};

} // namespace tavrik
