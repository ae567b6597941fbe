#include "ui/screens/Stagehand.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace tavrik {

namespace {

QQuickItem* findBelow(QQuickItem* item, const QString& name) {
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    for (QQuickItem* const child : item->childItems()) {
        if (QQuickItem* const found = findBelow(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

QQuickItem* Stagehand::find(const QString& name) {
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        const auto* const quick = qobject_cast<QQuickWindow*>(window);
        if (!quick || !quick->isVisible())
            continue;
        if (QQuickItem* const found = findBelow(quick->contentItem(), name))
            return found;
    }
    return nullptr;
}

bool Stagehand::click(const QString& name) {
    QQuickItem* const item = find(name);
    return item && click(item);
}

bool Stagehand::click(QQuickItem* item) {
    if (!item->isEnabled())
        return false;
    const QPointF middle = item->mapToScene({item->width() / 2, item->height() / 2});
    QTest::mouseClick(item->window(), Qt::LeftButton, {}, middle.toPoint());
    return true;
}

void Stagehand::type(QQuickWindow* window, const QString& text) {
    for (const QChar character : text)
        QTest::keyClick(window, character.toLatin1());
}

void Stagehand::press(QQuickWindow* window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window, key, modifiers);
}

bool Stagehand::waitFor(const std::function<bool()>& holds, int limit) {
    QElapsedTimer timer;
    timer.start();
    while (!holds()) {
        if (timer.elapsed() > limit)
            return false;
        QTest::qWait(10);
    }
    return true;
}

QImage Stagehand::settled(QQuickWindow* window) {
    QImage last;
    QImage picture = window->grabWindow();
    for (int i = 0; i < 100 && picture != last; ++i) {
        last = picture;
        QTest::qWait(150);
        picture = window->grabWindow();
    }
    return picture;
}

} // namespace tavrik
