#pragma once

#include "platform/ConcurrentQueue.h"
#include "platform/Path.h"

#include <QCache>
#include <QImage>
#include <QQuickAsyncImageProvider>

#include <mutex>
#include <string>

namespace tavrik {

class IconCache;
class IconManager;

/// Decodes icons for the views, off the main thread, at the size that is asked for. Answers "image://icon/"
/// addresses as `Images` makes them.
class IconProvider : public QQuickAsyncImageProvider {
public:
    IconProvider(IconCache& cache, const IconManager& icons);

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

private:
    QImage picture(const QString& id, int side);
    QImage iconFile(const MacPath& path, int side) const;
    QImage read(const QString& kind, const std::string& path, int side);

    IconCache& m_cache;
    const IconManager& m_icons;
    std::mutex m_lock;
    QCache<QString, QImage> m_pictures{64 << 10};   ///< scaled; KiB
    ConcurrentQueue m_queue{"com.tavrik.pictures"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
