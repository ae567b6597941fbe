#include "UiStage.h"
#include "icons/IconCache.h"
#include "platform/FileManager.h"
#include "platform/PathRules.h"
#include "platform/Workspace.h"
#include "platform/practice/Layout.h"
#include "practice/picture/Picture.h"
#include "ui/models/PreviewScene.h"

#include <QPainter>
#include <QSignalSpy>

#include <map>

namespace tavrik::test {

namespace {

constexpr int kSide = 64; ///< pixels at which pictures are compared

/// What a person sees of one item.
struct Seen {
    std::string title;
    QImage icon;
};

bool looksLike(const QImage& one, const QImage& other) {
    if (one.isNull() || other.isNull() || one.size() != other.size())
        return one.isNull() && other.isNull();
    double difference = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            difference += std::abs(a.redF() * a.alphaF() - b.redF() * b.alphaF()) +
                          std::abs(a.greenF() * a.alphaF() - b.greenF() * b.alphaF()) +
                          std::abs(a.alphaF() - b.alphaF());
        }
    }
    return difference / (one.width() * one.height()) < 0.02;
}

} // namespace

class PreviewTest : public UiStage {
protected:
    void open() {
        start();
        model().setShowsPreview(true);
        ASSERT_TRUE(waitFor([&] { return preview().isLoaded(); }));
    }

    PreviewModel& preview() { return *model().preview(); }

    PendingChangesManager& pending() { return program->managers().pendingChanges; }

    /// Chooses a new icon of this colour.
    void add(const std::string& bundleID, QColor colour) {
        QImage picture(256, 256, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setBrush(colour);
        painter.drawEllipse(20, 20, 216, 216);
        painter.end();
        const auto path = program->managers().iconStore.savePendingIcon(picture, bundleID);
        ASSERT_TRUE(path && pending().addIcon(bundleID, *path));
    }

    void waitForPreview() {
        ASSERT_TRUE(waitFor([&] { return preview().isCurrent() && !program->delegate().isBlocked(); }));
    }

    QImage pictureOf(const PreviewIcon& icon) {
        const QImage picture = icon.kind == PreviewIcon::Kind::none ? QImage()
                               : icon.kind == PreviewIcon::Kind::file
                                   ? program->managers().iconCache.loadImage(icon.path)
                                   : mac.workspace.icon(icon.path);
        return picture.isNull() ? picture : picture.scaled(kSide, kSide, {}, Qt::SmoothTransformation);
    }

    void look(const std::vector<PreviewItem>& items, PreviewFace PreviewItem::* face, std::vector<Seen>& seen) {
        for (const PreviewItem& item : items) {
            seen.push_back({(item.*face).title, pictureOf((item.*face).icon)});
            look(item.members, face, seen);
        }
    }

    std::vector<Seen> look(PreviewFace PreviewItem::* face) {
        std::vector<Seen> seen;
        for (const auto& page : preview().scene().pages)
            look(page, face, seen);
        look(preview().scene().tiles, face, seen);
        return seen;
    }

    /// Applies, and compares what was promised with what came of it.
    void expectKept() {
        waitForPreview();
        EXPECT_GT(preview().changeCount(), 0);
        const std::vector<Seen> promised = look(&PreviewItem::after);
        program->delegate().applyChanges();
        ASSERT_TRUE(waitFor([&] { return !pending().hasPendingChanges(); }));
        waitForPreview();
        EXPECT_EQ(preview().changeCount(), 0);
        const std::vector<Seen> found = look(&PreviewItem::now);
        ASSERT_EQ(promised.size(), found.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(promised[i].title, found[i].title);
            EXPECT_TRUE(looksLike(promised[i].icon, found[i].icon)) << found[i].title;
        }
    }

    const PreviewItem* itemCalled(const std::string& title) {
        for (const auto& page : preview().scene().pages) {
            for (const PreviewItem& item : page) {
                if (item.now.title == title)
                    return &item;
            }
        }
        return nullptr;
    }

    /// The part of the window that shows an item of Launchpad.
    QQuickItem* tileCalled(const char* side, const std::string& title) {
        const PreviewItem* const item = itemCalled(title);
        return item ? find(QLatin1String(side) + QString::fromStdString(item->key)) : nullptr;
    }

    double comparison(const char* property) {
        return find(QStringLiteral("comparison"))->property(property).toDouble();
    }
};

TEST_F(PreviewTest, NowIsWhatThePictureOfTheMacShows) {
    open();
    practice::PictureMap map;
    ASSERT_TRUE(practice::drawPicture(volume.root(), {}, map));
    std::multimap<std::string, std::string> drawn;
    std::vector<std::string> dock{"Finder"};
    for (const practice::Spot& spot : map.spots) {
        if (spot.where == "Dock")
            dock.push_back(spot.title);
        else
            drawn.emplace(spot.title, spot.path.string());
    }
    dock.push_back("Trash");
    std::multimap<std::string, std::string> shown;
    for (const auto& page : preview().scene().pages) {
        for (const PreviewItem& item : page) {
            shown.emplace(item.now.title, item.now.icon.path.string());
            for (const PreviewItem& member : item.members)
                shown.emplace(member.now.title, member.now.icon.path.string());
        }
    }
    EXPECT_EQ(shown, drawn);
    std::vector<std::string> tiles;
    for (const PreviewItem& tile : preview().scene().tiles) {
        if (tile.kind == PreviewItem::Kind::app)
            tiles.push_back(tile.now.title);
    }
    EXPECT_EQ(tiles, dock);
}

TEST_F(PreviewTest, AfterIsWhatAnApplyMakes) {
    open();
    // New wrappers: in the Dock, in a folder, of a row with the hidden flag.
    add("com.example.lumen.beacon", Qt::red);
    add("org.example.ferrule", Qt::green);
    add("com.apple.exposelauncher", Qt::blue);
    expectKept();

    // Another icon for one, a style for all, and one more wrapper.
    add("org.example.ferrule", Qt::yellow);
    add("net.example.tessera", Qt::cyan);
    pending().setPendingFont("Negative Squared");
    expectKept();

    // Plain names again, and one application's own icon.
    pending().setPendingReset(true);
    ASSERT_TRUE(pending().selectIcon("com.example.lumen.beacon", std::nullopt));
    expectKept();
}

TEST_F(PreviewTest, AnEditChangesWhatIsShownInItsPlace) {
    open();
    QQuickItem* const tile = tileCalled("after:", "Safari");
    ASSERT_TRUE(tile);
    const auto* const items = tile->parentItem()->property("items").value<PreviewItemsModel*>();
    const QSignalSpy removals(items, &QAbstractItemModel::rowsAboutToBeRemoved);
    const QSignalSpy resets(items, &QAbstractItemModel::modelAboutToBeReset);

    for (const char* font : {"Circled", "Fullwidth", "Mathematical Bold"})
        pending().setPendingFont(font);
    waitForPreview();
    EXPECT_EQ(tile->property("title").toString(), QStringLiteral("𝐒𝐚𝐟𝐚𝐫𝐢"));
    EXPECT_EQ(tileCalled("now:", "Safari")->property("title").toString(), QStringLiteral("Safari"));
    pending().setPendingFont(std::nullopt);
    waitForPreview();
    EXPECT_EQ(tile->property("title").toString(), QStringLiteral("Safari"));
    EXPECT_EQ(preview().changeCount(), 0);
    EXPECT_EQ(removals.count() + resets.count(), 0);
}

TEST_F(PreviewTest, PagesTurnByDotsKeysAndSwipes) {
    open();
    const auto shows = [&](double page) { return waitFor([&] { return comparison("position") == page; }); };
    ASSERT_TRUE(click(QStringLiteral("pageDot1")));
    EXPECT_TRUE(shows(1));
    press(window(), Qt::Key_Right);
    EXPECT_TRUE(shows(2));
    press(window(), Qt::Key_Right);
    EXPECT_TRUE(shows(2)); // there are three
    press(window(), Qt::Key_Left);
    EXPECT_TRUE(shows(1));

    const auto swipe = [&](int by) {
        const QPoint from(700, 500);
        QTest::mousePress(window(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(window(), from + QPoint(by * step / 10, 0));
        QTest::mouseRelease(window(), Qt::LeftButton, {}, from + QPoint(by, 0));
    };
    swipe(300);
    EXPECT_TRUE(shows(0));
    swipe(-300);
    EXPECT_TRUE(shows(1));
    swipe(-40);
    EXPECT_TRUE(shows(1)); // too short
}

TEST_F(PreviewTest, TheDividerFollowsThePointerAndTheKeys) {
    open();
    QQuickItem* const divider = find(QStringLiteral("previewDivider"));
    const QPoint from = divider->mapToScene({divider->width() / 2, divider->height() / 2}).toPoint();
    QTest::mousePress(window(), Qt::LeftButton, {}, from);
    QTest::mouseMove(window(), from - QPoint(200, 0));
    QTest::mouseRelease(window(), Qt::LeftButton, {}, from - QPoint(200, 0));
    EXPECT_NEAR(divider->mapToScene({divider->width() / 2, 0}).x(), from.x() - 200, 2);
    EXPECT_EQ(comparison("page"), 0);
    const double share = comparison("share");
    press(window(), Qt::Key_Left);
    EXPECT_NEAR(comparison("share"), share - 0.05, 1e-9);
    for (int i = 0; i < 40; ++i)
        press(window(), Qt::Key_Left);
    EXPECT_EQ(comparison("share"), 0);
}

TEST_F(PreviewTest, AFolderOpensInPlaceAndClosesWithEsc) {
    open();
    pending().setPendingFont("Mathematical Bold");
    waitForPreview();
    ASSERT_TRUE(click(tileCalled("now:", "Utilities")));
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("after:folderTitle")) != nullptr; }));
    EXPECT_EQ(find(QStringLiteral("now:folderTitle"))->property("text").toString(),
              QStringLiteral("Utilities"));
    EXPECT_EQ(find(QStringLiteral("after:folderTitle"))->property("text").toString(),
              QStringLiteral("𝐔𝐭𝐢𝐥𝐢𝐭𝐢𝐞𝐬"));
    EXPECT_EQ(preview().folder()->count(), 5);
    press(window(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor([&] { return find(QStringLiteral("after:folderTitle")) == nullptr; }));
}

TEST_F(PreviewTest, ShowsOnlyThePagesWithChangesOnDemand) {
    open();
    const int all = preview().pages()->count();
    ASSERT_GT(all, 1);
    add("org.example.ferrule", Qt::red); // in a folder of the second page
    waitForPreview();
    EXPECT_EQ(preview().pages()->changesOn(0), 0);
    EXPECT_EQ(preview().pages()->changesOn(1), 1);
    ASSERT_TRUE(click(QStringLiteral("onlyChangedPages")));
    EXPECT_EQ(preview().pages()->count(), 1);
    EXPECT_TRUE(tileCalled("after:", "Studio"));
    pending().clearAllPendingChanges();
    waitForPreview();
    EXPECT_EQ(preview().pages()->count(), 0);
    ASSERT_TRUE(click(QStringLiteral("onlyChangedPages")));
    EXPECT_EQ(preview().pages()->count(), all);
}

TEST_F(PreviewTest, SaysWhyThereIsNothingToSeeAndRecovers) {
    const MacPath preferences = dockPreferencesPath(practice::kHome);
    const auto content = mac.files.read(preferences);
    ASSERT_TRUE(content && mac.files.write(preferences, bytesOf("no property list")));
    open();
    EXPECT_THAT(preview().error().toStdString(), testing::HasSubstr("The Dock's preferences cannot be read"));
    ASSERT_TRUE(mac.files.write(preferences, *content));
    model().setShowsPreview(false);
    model().setShowsPreview(true);
    EXPECT_TRUE(waitFor([&] { return preview().error().isEmpty() && preview().pages()->count() > 0; }));
}

} // namespace tavrik::test
