#include "UiStage.h"
#include "platform/Png.h"
#include "ui/models/Background.h"

#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

#include <filesystem>
#include <map>

namespace tavrik::test {

class ApplicationsViewTest : public UiStage {
protected:
    void open() {
        start();
        ASSERT_TRUE(waitFor([&] { return apps().state() == ApplicationsList::Ready; }));
        list = find(QStringLiteral("appList"));
        ASSERT_TRUE(list);
    }

    ApplicationsPage& page() { return *model().applications(); }

    ApplicationsList& apps() { return *page().userApps(); }

    QVariant role(const QString& name, ApplicationsModel::Role which) {
        const auto* const rows = apps().rows();
        for (int row = 0; row < rows->rowCount(); ++row) {
            if (rows->index(row, 0).data(ApplicationsModel::name) == name)
                return rows->index(row, 0).data(which);
        }
        ADD_FAILURE() << name.toStdString() << " is not shown";
        return {};
    }

    QString identifier(const QString& name) { return role(name, ApplicationsModel::bundleID).toString(); }

    QStringList icons(const QString& name) {
        return role(name, ApplicationsModel::displayIcons).toStringList();
    }

    QQuickItem* rowInSight(const QString& name) {
        for (QQuickItem* const item : list->property("contentItem").value<QQuickItem*>()->childItems()) {
            if (item->isVisible() && item->property("name").toString() == name)
                return item;
        }
        return nullptr;
    }

    QQuickItem* row(const QString& name) {
        EXPECT_TRUE(waitFor([&] { return rowInSight(name) != nullptr; })) << name.toStdString();
        return rowInSight(name);
    }

    /// Null when the row has none of this name in sight.
    QQuickItem* inRow(const QString& name, const QString& item) { return findIn(row(name), item); }

    /// Waits for it.
    QQuickItem* itemOf(const QString& name, const QString& item) {
        EXPECT_TRUE(waitFor([&] { return inRow(name, item) != nullptr; })) << item.toStdString();
        return inRow(name, item);
    }

    QString textIn(const QString& name, const QString& item) {
        const QQuickItem* const found = inRow(name, item);
        return found ? found->property("text").toString() : QString();
    }

    QUrl file(const QString& name, const QColor& color) {
        QImage picture(64, 64, QImage::Format_ARGB32);
        picture.fill(color);
        picture.save(desk.filePath(name));
        return QUrl::fromLocalFile(desk.filePath(name));
    }

    QUrl note() {
        QFile written(desk.filePath(QStringLiteral("Note.txt")));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly) && written.write("Bread\n") > 0);
        return QUrl::fromLocalFile(written.fileName());
    }

    static std::unique_ptr<QMimeData> carrying(const QList<QUrl>& urls) {
        auto data = std::make_unique<QMimeData>();
        data->setUrls(urls);
        return data;
    }

    void drop(const QString& name, const QList<QUrl>& urls) {
        const auto data = carrying(urls);
        EXPECT_TRUE(dragOnto(row(name), *data));
        EXPECT_TRUE(letGo(row(name), *data));
    }

    void dropAndWait(const QString& name, const QList<QUrl>& urls) {
        QSignalSpy added(&apps(), &ApplicationsList::added);
        drop(name, urls);
        ASSERT_TRUE(waitFor([&] { return added.count() == 1; }));
    }

    void makeTheme(const QString& forApp) {
        QImage picture(64, 64, QImage::Format_ARGB32);
        picture.fill(Qt::darkGreen);
        const std::map<std::string, Bytes> content{
            {identifier(forApp).toStdString() + ".png", *png::encode(picture)}};
        Background background(program->delegate());
        bool isMade = false;
        background.run(
            &desktop, [&] { return program->managers().themes.createTheme("Harbour", content); },
            [&](const Result<Theme>& theme) { isMade = bool(theme); });
        ASSERT_TRUE(waitFor(
            [&] { return isMade && !role(forApp, ApplicationsModel::themeIcons).toStringList().isEmpty(); }));
    }

    const StagedChanges& staged() { return program->managers().pendingChanges.staged(); }

    bool hasRecoveryFile() { return mac.files.exists(program->managers().pendingChanges.tempFileURL()); }

    std::optional<int> stagedChoice(const QString& name) {
        return staged().pendingChanges.at(identifier(name).toStdString()).selectedIndex;
    }

    const QString atlas = QStringLiteral("Atlas");
    const QString beacon = QStringLiteral("Beacon");
    QTemporaryDir desk;
    QObject desktop;
    QQuickItem* list = nullptr;
};

TEST_F(ApplicationsViewTest, DroppedPicturesAreStagedAndAClickChoosesAmongThem) {
    open();
    QSignalSpy resets(apps().rows(), &QAbstractItemModel::modelReset);
    dropAndWait(atlas, {file(QStringLiteral("Red.png"), Qt::red), file(QStringLiteral("Blue.png"), Qt::blue)});
    EXPECT_EQ(icons(atlas).size(), 2);
    EXPECT_EQ(stagedChoice(atlas), 1) << "the last one is chosen";
    EXPECT_TRUE(hasRecoveryFile());
    EXPECT_THAT(textIn(atlas, QStringLiteral("appCaption")).toStdString(),
                testing::StartsWith("Not applied yet"));

    EXPECT_TRUE(click(itemOf(atlas, QStringLiteral("tile1"))));
    EXPECT_EQ(stagedChoice(atlas), 0);
    EXPECT_TRUE(click(itemOf(atlas, QStringLiteral("tile0"))));
    EXPECT_EQ(stagedChoice(atlas), std::nullopt) << "its own icon";
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(ApplicationsViewTest, ADragShowsWhatWouldBecomeOfItAndStagesNothing) {
    open();
    const auto good = carrying({file(QStringLiteral("Red.png"), Qt::red)});
    EXPECT_TRUE(dragOnto(row(beacon), *good));
    EXPECT_TRUE(waitFor([&] { return inRow(beacon, QStringLiteral("dropPreview")) != nullptr; }));
    const QPointF middle = itemOf(beacon, QStringLiteral("dropPreview"))->mapToScene({20, 20});
    EXPECT_EQ(settled(window()).pixelColor(middle.toPoint()), QColor(Qt::red));
    dragAway(row(beacon));
    EXPECT_FALSE(inRow(beacon, QStringLiteral("dropPreview")));

    const auto bad = carrying({note()});
    EXPECT_TRUE(dragOnto(row(beacon), *bad));
    EXPECT_TRUE(waitFor(
        [&] { return textIn(beacon, QStringLiteral("dropMessage")).contains(QLatin1String("Note.txt")); }));
    dragAway(row(beacon));
    EXPECT_FALSE(inRow(beacon, QStringLiteral("dropMessage")));
    EXPECT_TRUE(staged().empty());
}

TEST_F(ApplicationsViewTest, OfTwoFilesTheGoodOneIsTakenInAndTheOtherIsRefusedInASentence) {
    open();
    dropAndWait(atlas, {note(), file(QStringLiteral("Red.png"), Qt::red)});
    EXPECT_EQ(icons(atlas).size(), 1);
    EXPECT_TRUE(model().notices()->isRefusal());
    EXPECT_THAT(model().notices()->text().toStdString(), testing::HasSubstr("“Note.txt”"));

    dropAndWait(beacon,
                {note(), QUrl::fromLocalFile(desk.path()), QUrl(QStringLiteral("https://example.com/a.png"))});
    EXPECT_TRUE(icons(beacon).isEmpty());
    EXPECT_THAT(model().notices()->text().toStdString(), testing::HasSubstr("3 pictures"));
}

TEST_F(ApplicationsViewTest, PastesAPictureOrAFileOntoTheCurrentRow) {
    open();
    click(itemOf(beacon, QStringLiteral("appName")));
    const auto paste = [&] { press(window(), Qt::Key_V, Qt::ControlModifier); };
    QGuiApplication::clipboard()->clear();
    paste();
    EXPECT_THAT(model().notices()->text().toStdString(), testing::HasSubstr("no picture on the clipboard"));

    QImage picture(40, 40, QImage::Format_ARGB32);
    picture.fill(Qt::cyan);
    QGuiApplication::clipboard()->setImage(picture);
    paste();
    EXPECT_TRUE(waitFor([&] { return icons(beacon).size() == 1; }));
    QGuiApplication::clipboard()->setMimeData(carrying({file(QStringLiteral("Red.png"), Qt::red)}).release());
    paste();
    EXPECT_TRUE(waitFor([&] { return icons(beacon).size() == 2; }));
    settled(window());
    EXPECT_EQ(icons(beacon).size(), 2); // the menu's shortcut and the list's key are one
    QGuiApplication::clipboard()->clear();
}

TEST_F(ApplicationsViewTest, RemovesIconsAndHidesThoseOfThemes) {
    open();
    makeTheme(atlas);
    dropAndWait(atlas, {file(QStringLiteral("Red.png"), Qt::red)});
    hover(itemOf(atlas, QStringLiteral("tile1")));
    EXPECT_TRUE(click(itemOf(atlas, QStringLiteral("removeTile1"))));
    EXPECT_TRUE(icons(atlas).isEmpty());
    model().edits()->undo();
    EXPECT_EQ(icons(atlas).size(), 1);
    model().edits()->redo();
    EXPECT_TRUE(icons(atlas).isEmpty());

    // In the place of the one before, its own picture.
    dropAndWait(atlas, {file(QStringLiteral("Blue.png"), Qt::blue)});
    const QPointF middle = itemOf(atlas, QStringLiteral("tile1"))->mapToScene({26, 34});
    EXPECT_EQ(settled(window()).pixelColor(middle.toPoint()), QColor(Qt::blue));

    hover(itemOf(atlas, QStringLiteral("tile3")));
    EXPECT_TRUE(click(itemOf(atlas, QStringLiteral("removeTile3"))));
    ASSERT_EQ(staged().pendingThemeIconHides.size(), 1u);
    EXPECT_EQ(staged().pendingThemeIconHides.front().iconFileName, identifier(atlas).toStdString() + ".png");
    EXPECT_TRUE(role(atlas, ApplicationsModel::themeIcons).toStringList().isEmpty());
}

TEST_F(ApplicationsViewTest, SearchesAndFiltersByKeyboardAndSaysWhenNothingIsFound) {
    open();
    const int all = apps().shownCount();
    press(window(), Qt::Key_F, Qt::ControlModifier);
    type(window(), QStringLiteral("beac"));
    EXPECT_EQ(apps().shownCount(), 1);
    EXPECT_TRUE(row(beacon));
    type(window(), QStringLiteral("zzz"));
    EXPECT_TRUE(find(QStringLiteral("noMatch")));
    page().clearFilters();
    EXPECT_EQ(find(QStringLiteral("appSearch"))->property("text").toString().toStdString(), "");
    type(window(), QStringLiteral("q"));
    press(window(), Qt::Key_Escape);
    EXPECT_EQ(apps().shownCount(), all);

    EXPECT_TRUE(click(QStringLiteral("filterApps")));
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("filterDock")) != nullptr; }));
    EXPECT_FALSE(find(QStringLiteral("filterDot")));
    click(QStringLiteral("filterDock"));
    EXPECT_TRUE(find(QStringLiteral("filterDot")));
    const int inDock = apps().shownCount();
    EXPECT_GT(inDock, 0);
    EXPECT_LT(inDock, all);
    click(QStringLiteral("filterOption1"));
    EXPECT_EQ(apps().shownCount(), 0) << "nothing is themed yet";
    click(QStringLiteral("filterOption2"));
    EXPECT_EQ(apps().shownCount(), inDock);
    click(QStringLiteral("filterOption1"));
    press(window(), Qt::Key_Escape);
    EXPECT_FALSE(find(QStringLiteral("filterDock")));
    page().clearFilters();
    EXPECT_EQ(apps().shownCount(), all);
    EXPECT_FALSE(find(QStringLiteral("filterDot")));

    const QString first = apps().rows()->index(0, 0).data(ApplicationsModel::name).toString();
    click(QStringLiteral("sortApps"));
    EXPECT_EQ(apps().rows()->index(all - 1, 0).data(ApplicationsModel::name), first);
}

TEST_F(ApplicationsViewTest, TheKeyboardReachesEveryIconOfARow) {
    open();
    makeTheme(atlas);
    dropAndWait(atlas, {file(QStringLiteral("Red.png"), Qt::red)});
    press(window(), Qt::Key_F, Qt::ControlModifier);
    press(window(), Qt::Key_Down);
    EXPECT_TRUE(list->hasActiveFocus());
    press(window(), Qt::Key_Home);
    while (list->property("currentItem").value<QQuickItem*>() != row(atlas))
        press(window(), Qt::Key_Down);

    // The row begins at its chosen icon; the tile that adds is passed on the way to the theme's.
    EXPECT_EQ(list->property("currentTile").toInt(), 1);
    press(window(), Qt::Key_Space);
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("largeLabel")) != nullptr; }));
    const auto label = [&] {
        return find(QStringLiteral("largeLabel"))->property("text").toString().toStdString();
    };
    EXPECT_EQ(label(), "Icon 1, not applied yet");
    press(window(), Qt::Key_Right);
    EXPECT_EQ(label(), "Icon of the theme “Harbour”") << "the tile that adds has nothing to show";
    press(window(), Qt::Key_Return);
    EXPECT_EQ(stagedChoice(atlas), 1);
    press(window(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor([&] { return !find(QStringLiteral("largeLabel")); }));

    press(window(), Qt::Key_Left);
    press(window(), Qt::Key_Left);
    press(window(), Qt::Key_Delete);
    EXPECT_TRUE(icons(atlas).isEmpty());
    press(window(), Qt::Key_Left);
    press(window(), Qt::Key_Return);
    EXPECT_EQ(staged().pendingChanges.size(), 0u) << "as it was before";
}

TEST_F(ApplicationsViewTest, SaysWhyAnApplicationCannotBeRestyled) {
    open();
    press(window(), Qt::Key_F, Qt::ControlModifier);
    type(window(), QStringLiteral("pocket tides"));
    const QString tides = QStringLiteral("Pocket Tides");
    page().setShowUnsupportedApps(true);
    ASSERT_EQ(apps().shownCount(), 1);
    EXPECT_FALSE(inRow(tides, QStringLiteral("tile0")));
    EXPECT_TRUE(click(itemOf(tides, QStringLiteral("whyNot"))));
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("whyNotSentence")) != nullptr; }));
    EXPECT_EQ(find(QStringLiteral("whyNotSentence"))->property("text"),
              role(tides, ApplicationsModel::refusal));
    press(window(), Qt::Key_Escape);

    const auto data = carrying({file(QStringLiteral("Red.png"), Qt::red)});
    dragOnto(row(tides), *data);
    EXPECT_EQ(textIn(tides, QStringLiteral("dropMessage")), role(tides, ApplicationsModel::refusal));
    letGo(row(tides), *data);
    EXPECT_TRUE(staged().empty());
}

TEST_F(ApplicationsViewTest, AddsThePicturesThatAreChosenInADialog) {
    open();
    EXPECT_TRUE(page().picturePatterns().contains(QLatin1String("*.png *.jpg")));
    const auto current = [&] { return list->property("currentRow").value<QQuickItem*>(); };
    ASSERT_TRUE(waitFor([&] { return current() != nullptr; }));
    const QString name = current()->property("name").toString();
    QSignalSpy added(&apps(), &ApplicationsList::added);
    press(window(), Qt::Key_O, Qt::ControlModifier);
    chooseInPanel("selectedFile", file(QStringLiteral("Red.png"), Qt::red));
    ASSERT_TRUE(waitFor([&] { return added.count() == 1; }));
    EXPECT_EQ(icons(name).size(), 1);
}

TEST_F(ApplicationsViewTest, AnUnreadableDatabaseIsSaidAndReadAgainOnDemand) {
    const std::filesystem::path database = volume.launchpadDatabase().string();
    const std::filesystem::path away = database.string() + ".away";
    std::filesystem::rename(database, away);
    start();
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("unreadable")) != nullptr; }));
    std::filesystem::rename(away, database);
    page().tryAgain();
    EXPECT_TRUE(waitFor([&] { return apps().state() == ApplicationsList::Ready; }));
    EXPECT_FALSE(find(QStringLiteral("unreadable")));
}

} // namespace tavrik::test
