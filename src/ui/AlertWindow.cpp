#include "ui/AlertWindow.h"

#include "ui/models/GlyphProvider.h"
#include "ui/models/WindowAlerts.h"

namespace tavrik {

AlertWindow::AlertWindow(WindowAlerts& alerts) {
    m_engine.addImageProvider(QStringLiteral("glyph"), new GlyphProvider);
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    m_engine.setInitialProperties({{QStringLiteral("alerts"), QVariant::fromValue(&alerts)}});
    m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Tavrik/qml/AlertOnly.qml")));
}

} // namespace tavrik
