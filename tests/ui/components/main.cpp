#include "ui/models/GlyphProvider.h"

#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(TavrikPlugin)

/// What the components need around them.
class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:

    void applicationAvailable() {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        QQuickStyle::setStyle(QStringLiteral("Basic"));
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImageProvider(QStringLiteral("glyph"), new tavrik::GlyphProvider);
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(components, Setup)

#include "main.moc"
