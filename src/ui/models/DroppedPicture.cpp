#include "ui/models/DroppedPicture.h"

#include <QPainter>

namespace tavrik {

void DroppedPicture::setDrop(PictureDrop* drop) {
    if (drop == m_drop)
        return;
    if (m_drop)
        m_drop->disconnect(this);
    m_drop = drop;
    if (m_drop)
        connect(m_drop, &PictureDrop::changed, this, [this] { update(); });
    update();
    Q_EMIT dropChanged();
}

void DroppedPicture::paint(QPainter* painter) {
    if (!m_drop || !m_drop->hasPicture())
        return;
    const QSizeF fitted = QSizeF(m_drop->picture().size()).scaled(size(), Qt::KeepAspectRatio);
    const QRectF place({(width() - fitted.width()) / 2, (height() - fitted.height()) / 2}, fitted);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(place, m_drop->picture());
}

} // namespace tavrik
