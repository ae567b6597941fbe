#include "ui/models/IconProvider.h"

#include "icons/IconCache.h"
#include "icons/ImageIntake.h"
#include "model/SquircleOutline.h"
#include "platform/HostFile.h"
#include "platform/Path.h"
#include "system/IconManager.h"

#include <QPointer>
#include <QQuickImageResponse>
#include <QQuickTextureFactory>

#include <algorithm>
#include <atomic>

namespace tavrik {

namespace {

constexpr int kDefaultSide = 128; ///< pixels

/// A request under way. The engine deletes it, at any time after it has finished.
class Response : public QQuickImageResponse {
public:
    void cancel() override { m_isWanted = false; }

    bool isWanted() const { return m_isWanted; }

    void finish(const QImage& picture) {
        m_picture = picture;
        Q_EMIT finished();
    }

    QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(m_picture);
    }

    QString errorString() const override {
        return m_picture.isNull() ? QStringLiteral("the picture cannot be read") : QString();
    }

private:
    std::atomic<bool> m_isWanted = true;
    QImage m_picture;
};

QImage fitted(const QImage& picture, int side) {
    return picture.isNull() || std::max(picture.width(), picture.height()) <= side
               ? picture
               : picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

IconProvider::IconProvider(IconCache& cache, const IconManager& icons) : m_cache(cache), m_icons(icons) {}

QQuickImageResponse* IconProvider::requestImageResponse(const QString& id, const QSize& requestedSize) {
    const int asked = std::max(requestedSize.width(), requestedSize.height());
    const int side = asked > 0 ? asked : kDefaultSide;
    auto* const response = new Response;
    // It lives until it has finished, whether or not anybody still waits for it.
    m_queue.async(
        [this, id, side, response] { response->finish(response->isWanted() ? picture(id, side) : QImage()); });
    return response;
}

QImage IconProvider::read(const QString& kind, const std::string& path, int side) {
    if (kind == QLatin1String("app"))
        return m_icons.appIcon(MacPath(path), side);
    if (kind == QLatin1String("shown"))
        return m_icons.shownIcon(MacPath(path), side);
    if (kind != QLatin1String("host"))
        return iconFile(MacPath(path), side);
    const HostPath file(path);
    const auto content = readHostFile(file);
    const auto handedOver = content ? readPicture(*content, file.name()) : Result<QImage>(content.error());
    return handedOver ? *handedOver : QImage();
}

QImage IconProvider::picture(const QString& id, int side) {
    const QString key = id + QLatin1Char('@') + QString::number(side);
    {
        const std::lock_guard lock(m_lock);
        if (const QImage* known = m_pictures.object(key))
            return *known;
    }
    const QStringList parts = id.split(QLatin1Char('/'));
    if (parts.size() != 3)
        return {};
    QImage scaled = fitted(
        read(parts[0], QByteArray::fromBase64(parts[2].toLatin1(), QByteArray::Base64UrlEncoding).toStdString(),
             side),
        side);
    if (parts[0] == QLatin1String("cut"))
        scaled = maskedToSquircle(scaled);
    const std::lock_guard lock(m_lock);
    m_pictures.insert(key, new QImage(scaled), std::max<qsizetype>(1, scaled.sizeInBytes() >> 10));
    return scaled;
}

QImage IconProvider::iconFile(const MacPath& path, int side) const {
    for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2}) {
        if (side <= static_cast<int>(size))
            return m_cache.thumbnail(path, size);
    }
    return m_cache.loadImage(path);
}

} // namespace tavrik
