#pragma once

#include <QQuickImageProvider>

namespace tavrik {

/// Draws the interface's own signs in any colour and size: "image://glyph/search/1d1d1f". Pure; any thread.
class GlyphProvider : public QQuickImageProvider {
public:
    GlyphProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace tavrik
