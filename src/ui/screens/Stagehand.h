#pragma once

#include <QImage>
#include <QPoint>
#include <QString>

#include <functional>

class QMimeData;
class QQuickItem;
class QQuickWindow;

namespace tavrik {

/// Acts on the windows as a person does, for pictures and tests: finds items by their `objectName`, clicks,
/// types, waits. Main thread.
class Stagehand {
public:
    /// The first visible item of this name in any window, popups included; null when there is none.
    static QQuickItem* find(const QString& name);
    /// The same for the item itself and what is below it.
    static QQuickItem* findIn(QQuickItem* item, const QString& name);

    /// Clicks into the middle of an item. False when there is none, or it is disabled.
    static bool click(const QString& name);
    static bool click(QQuickItem* item);

    static void type(QQuickWindow* window, const QString& text);
    static void press(QQuickWindow* window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Moves the pointer onto the middle of an item.
    static void hover(QQuickItem* item);
    /// Moves it to where nothing is.
    static void pointAway(QQuickWindow* window);

    /// Holds dragged data over the middle of an item, lets it go there, or takes it elsewhere again. False when
    /// the item does not take it.
    static bool dragOnto(QQuickItem* item, const QMimeData& data);
    static bool letGo(QQuickItem* item, const QMimeData& data);
    static void dragAway(QQuickItem* item);

    /// Lets the window live until this holds. False after so many milliseconds.
    static bool waitFor(const std::function<bool()>& holds, int limit = 10'000);

    /// Waits until the window looks the same twice: pictures are loaded, nothing moves any more.
    static QImage settled(QQuickWindow* window);
};

} // namespace tavrik
