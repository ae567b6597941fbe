#include "UiStage.h"
#include "ui/screens/Scene.h"

#include <QAccessible>

#include <set>

namespace tavrik::test {

namespace {

/// What can be focused and has no name, with where it stands.
void findNameless(QAccessibleInterface* item, const QString& where, QStringList& found) {
    if (!item || !item->isValid() || item->state().invisible)
        return;
    const QString name = item->text(QAccessible::Name);
    const QString place = where + QLatin1Char('/') + (name.isEmpty() ? QString::number(item->role()) : name);
    if (item->state().focusable && name.isEmpty() && item->role() != QAccessible::Window)
        found.append(place);
    for (int i = 0; i < item->childCount(); ++i)
        findNameless(item->child(i), place, found);
}

} // namespace

class Accessibility : public UiStage {};

TEST_F(Accessibility, EverythingThatCanBeFocusedHasANameAndNoViewIsATrap) {
    QAccessible::setActive(true);
    NetworkConsent(mac.defaults).countStart();
    isWelcomed = false;
    isNetworkAsked = false;
    start();
    model().endFirstStart();
    for (const Scene& scene : allScenes()) {
        QQuickWindow* const shown = scene.show(*program);
        ASSERT_NE(shown, nullptr) << scene.name.toStdString();
        settled(shown);
        QStringList nameless;
        findNameless(QAccessible::queryAccessibleInterface(shown), {}, nameless);
        EXPECT_EQ(nameless.join(QLatin1Char('\n')).toStdString(), "") << scene.name.toStdString();

        // By the tab key the focus goes on, and comes round.
        constexpr int kMostStops = 400;
        std::set<QQuickItem*> stops;
        QQuickItem* last = shown->activeFocusItem();
        bool cameRound = false;
        for (int i = 0; i < kMostStops && !cameRound; ++i) {
            press(shown, Qt::Key_Tab);
            QQuickItem* const now = shown->activeFocusItem();
            cameRound = !stops.insert(now).second;
            EXPECT_TRUE(now != last || stops.size() == 1) << scene.name.toStdString() << ": the focus stays";
            last = now;
        }
        EXPECT_TRUE(cameRound) << scene.name.toStdString();
    }
}

} // namespace tavrik::test
