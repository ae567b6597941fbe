#include "ui/screens/Stagehand.h"

#include "platform/Result.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQuickTest/quicktest.h>

namespace tavrik {

namespace {

/// Waits until the window is laid out, for only then every item stands where a person sees it: what moved
/// between a press and its release was not clicked. Null when the item went away meanwhile.
QPointer<QQuickItem> laidOut(QQuickItem* item) {
    const QPointer<QQuickItem> held = item;
    ignoreFailure(QQuickTest::qWaitForPolish(item->window()));
    return held;
}

QPoint middleOf(const QQuickItem* item) {
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

} // namespace

QQuickItem* Stagehand::find(const QString& name) {
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        const auto* const quick = qobject_cast<QQuickWindow*>(window);
        if (!quick || !quick->isVisible())
            continue;
        if (QQuickItem* const found = findIn(quick->contentItem(), name))
            return found;
    }
    return nullptr;
}

QQuickItem* Stagehand::findIn(QQuickItem* item, const QString& name) {
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    for (QQuickItem* const child : item->childItems()) {
        if (QQuickItem* const found = findIn(child, name))
            return found;
    }
    return nullptr;
}

bool Stagehand::click(const QString& name) {
    QQuickItem* const item = find(name);
    return item && click(item);
}

bool Stagehand::click(QQuickItem* item) {
    const auto target = laidOut(item);
    if (!target || !target->isEnabled())
        return false;
    QTest::mouseClick(target->window(), Qt::LeftButton, {}, middleOf(target));
    return true;
}

void Stagehand::type(QQuickWindow* window, const QString& text) {
    for (const QChar character : text)
        QTest::keyClick(window, character.toLatin1());
}

void Stagehand::press(QQuickWindow* window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window, key, modifiers);
}

void Stagehand::hover(QQuickItem* item) {
    if (const auto target = laidOut(item))
        QTest::mouseMove(target->window(), middleOf(target));
}

void Stagehand::pointAway(QQuickWindow* window) {
    QTest::mouseMove(window, {1, window->height() - 1});
}

bool Stagehand::dragOnto(QQuickItem* item, const QMimeData& data) {
    const auto target = laidOut(item);
    if (!target)
        return false;
    QQuickWindow* const window = target->window();
    const QPoint middle = middleOf(target);
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    return enter.isAccepted() && move.isAccepted();
}

bool Stagehand::letGo(QQuickItem* item, const QMimeData& data) {
    QDropEvent drop(middleOf(item), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(item->window(), &drop);
    return drop.isAccepted();
}

void Stagehand::dragAway(QQuickItem* item) {
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(item->window(), &leave);
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
