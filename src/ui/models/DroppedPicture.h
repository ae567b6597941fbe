#pragma once

#include "ui/models/PictureDrop.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// Shows the icon that dragged pictures would become, fitted into the item; nothing without a drag.
class DroppedPicture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tavrik::PictureDrop* drop READ drop WRITE setDrop NOTIFY dropChanged)

public:
    PictureDrop* drop() const { return m_drop; }

    void setDrop(PictureDrop* drop);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void dropChanged();

private:
    QPointer<PictureDrop> m_drop;
};

} // namespace tavrik
