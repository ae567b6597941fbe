#include "UiStage.h"
#include "icons/HiddenThemeIcons.h"
#include "platform/HostFile.h"
#include "platform/Png.h"
#include "platform/SerialQueue.h"
#include "support/TemporaryFolder.h"

#include <QDropEvent>
#include <QMimeData>

#include <atomic>
#include <map>

namespace tavrik::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto kSafari = "com.apple.Safari";
constexpr auto kMail = "com.apple.mail";
constexpr auto kNotes = "com.apple.Notes";

Bytes pictureOf(QColor colour) {
    QImage image(1024, 1024, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return *png::encode(image);
}

QString named(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

class ThemesViewTest : public UiStage {
protected:
    /// Opens the place for themes with one theme in it, which has an icon for Safari, Mail, an application that
    /// is not installed, and one that cannot be restyled.
    void startWithTheme() {
        startEmpty();
        offMain([&] {
            ocean = *managers().themes.createTheme("Ocean", {{"com.apple.Safari.png", pictureOf(Qt::blue)},
                                                             {"com.apple.mail.png", pictureOf(Qt::cyan)},
                                                             {"com.example.gone.png", pictureOf(Qt::red)}});
        });
        ASSERT_TRUE(waitFor([&] { return page().library()->count() == 1; }));
    }

    void startEmpty() {
        start();
        model().setPlace(WindowModel::Place::Themes);
        ASSERT_TRUE(waitFor([&] { return page().isLoaded(); }));
    }

    /// With the tiles of these applications alone: those that no row shows have no place on the screen.
    void openTheme(const char* search) {
        ASSERT_TRUE(waitFor([&] { return click("theme Ocean"); }));
        page().theme()->setSearch(QString::fromUtf8(search));
        ASSERT_TRUE(waitFor([&] { return page().theme()->icons()->rowCount() > 0; }));
        settled(window());
    }

    ThemesPage& page() { return *model().themes(); }

    Managers& managers() { return program->managers(); }

    const StagedChanges& staged() { return managers().pendingChanges.staged(); }

    std::vector<Theme> themes() { return managers().themes.installedThemes(); }

    void offMain(const std::function<void()>& work) {
        std::atomic<bool> isDone = false;
        SerialQueue queue("com.tavrik.test");
        queue.async([&] {
            work();
            isDone = true;
        });
        ASSERT_TRUE(waitFor([&] { return isDone.load(); }));
    }

    bool finishes() {
        return waitFor([&] { return !page().work()->isRunning(); }, 60'000);
    }

    static QQuickItem* find(const char* name) { return Stagehand::find(QString::fromUtf8(name)); }

    static bool click(const char* name) { return Stagehand::click(QString::fromUtf8(name)); }

    static std::string textOf(const char* name) {
        QQuickItem* const item = find(name);
        return item ? item->property("text").toString().toStdString() : "nothing";
    }

    void dropOn(const char* name, const std::vector<HostPath>& dropped) {
        QMimeData data;
        QList<QUrl> urls;
        for (const HostPath& file : dropped)
            urls.append(QUrl::fromLocalFile(named(file.string())));
        data.setUrls(urls);
        QQuickItem* const item = find(name);
        ASSERT_TRUE(item);
        const QPoint middle = item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window(), &enter);
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window(), &drop);
    }

    HostPath write(const std::string& name, QColor colour = Qt::green) {
        const HostPath file = folder.path() / name;
        ignoreFailure(writeHostFile(file, pictureOf(colour)));
        return file;
    }

    QColor iconColour(const char* bundleID) {
        const auto content = mac.files.read(
            managers().themes.library().iconsOf(ocean.themeID) / (std::string(bundleID) + ".png"), 1u << 20);
        return content ? png::decode(*content).pixelColor(512, 512) : QColor();
    }

    Theme ocean;
    TemporaryFolder folder;
};

TEST_F(ThemesViewTest, RefusesANameInPlaceAndMakesTheThemeOtherwise) {
    startWithTheme();
    ASSERT_TRUE(click("newTheme"));
    ASSERT_TRUE(waitFor([] { return find("themeName") && find("themeName")->hasActiveFocus(); }));

    struct {
        const char* name;
        const char* problem;
        bool canCreate;
    } const cases[] = {
        {"", "", false},
        {"a/b", "Theme name contains invalid characters", false},
        {".hidden", "Theme name contains invalid characters", false},
        {"123456789012345678901234567890123456789012345678901", "Theme name contains invalid characters",
         false},
        {" Ocean ", "A theme with this name already exists", false},
        {"ocean", "", true},
    };

    for (const auto& tried : cases) {
        find("themeName")->setProperty("text", QString());
        type(window(), QString::fromUtf8(tried.name));
        EXPECT_EQ(textOf("themeNameProblem"), tried.problem) << tried.name;
        EXPECT_EQ(find("createTheme")->isEnabled(), tried.canCreate) << tried.name;
    }
    press(window(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return themes().size() == 2 && textOf("shownThemeName") == "ocean"; }));
    EXPECT_FALSE(page().isCreating());
    EXPECT_EQ(textOf("themeDropHint"), "Drag and drop images here to add icons to this theme");
}

TEST_F(ThemesViewTest, TellsAnEmptyLibraryHowToBegin) {
    startEmpty();
    ASSERT_TRUE(find("emptyThemeLibrary"));
    EXPECT_EQ(textOf("emptyThemeLibrary"), "Use the + button above to create a theme and organize your icons.");
    // A name that is taken meanwhile is refused by the making itself.
    ASSERT_TRUE(click("newTheme"));
    page().create(QStringLiteral("a:b"), false);
    ASSERT_TRUE(finishes());
    EXPECT_EQ(textOf("themeNameProblem"), "Theme name contains invalid characters");
    EXPECT_THAT(themes(), IsEmpty());
}

TEST_F(ThemesViewTest, StagesAThemeAndTellsWhichAppsWereLeftAlone) {
    startWithTheme();
    std::string iOSApp;
    offMain([&] {
        for (const ApplicationInfo& app : managers().apps.loadApplications()) {
            if (app.isIOSApp)
                iOSApp = app.bundleID;
        }
        QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        EXPECT_TRUE(managers().themes.addIcon(image, iOSApp, ocean));
    });
    ASSERT_NE(iOSApp, "");
    ASSERT_TRUE(click("apply Ocean"));
    EXPECT_TRUE(page().work()->isRunning());
    EXPECT_FALSE(click("apply Ocean"));
    ASSERT_TRUE(finishes());
    EXPECT_THAT(textOf("themeOutcome"), HasSubstr("“Ocean” is chosen for 2 app"));
    ASSERT_EQ(page().work()->details().size(), 1);
    EXPECT_THAT(page().work()->details().front().toStdString(), HasSubstr("Left alone"));
    EXPECT_EQ(staged().pendingChanges.size(), 2u);
    EXPECT_EQ(staged().pendingChanges.count(kSafari), 1u);
    ASSERT_TRUE(click("dismissThemeOutcome"));
    EXPECT_FALSE(find("themeOutcome"));
}

TEST_F(ThemesViewTest, HidesAnIconByAClickAndShowsItByAnother) {
    startWithTheme();
    openTheme("Safari");
    ASSERT_TRUE(click("icon Safari"));
    EXPECT_THAT(staged().pendingThemeIconHides,
                ElementsAre(ThemeIconHide{ocean.themeID, "com.apple.Safari.png"}));
    press(window(), Qt::Key_Space);
    EXPECT_THAT(staged().pendingThemeIconHides, IsEmpty());

    // One whose hiding was applied is shown as of now.
    offMain([&] {
        EXPECT_TRUE(managers().hiddenThemeIcons.hide(ocean.themeID, "com.apple.mail.png"));
        managers().themes.loadThemes();
    });
    page().theme()->setSearch({});
    page().theme()->setFilter(static_cast<int>(ThemeIconState::hidden));
    ASSERT_TRUE(waitFor([] { return find("icon Mail") != nullptr; }));
    settled(window());
    ASSERT_TRUE(waitFor([] { return click("icon Mail"); }));
    EXPECT_TRUE(waitFor([&] { return managers().hiddenThemeIcons.hidden(ocean.themeID).empty(); }));
    EXPECT_TRUE(waitFor([] { return !find("icon Mail"); }));
    EXPECT_FALSE(managers().pendingChanges.hasPendingChanges());
}

TEST_F(ThemesViewTest, EditsAThemeStagedAndUndone) {
    startWithTheme();
    openTheme("Mail");
    ASSERT_TRUE(click("editTheme"));
    ASSERT_TRUE(waitFor([] { return click("delete Mail"); }));
    EXPECT_THAT(staged().pendingThemeIconDeletions,
                ElementsAre(std::pair(ocean.themeID, std::vector<std::string>{"com.apple.mail.png"})));
    ASSERT_TRUE(click("keep Mail"));
    EXPECT_THAT(staged().pendingThemeIconDeletions, IsEmpty());

    // Names are written at once, and refused in place.
    find("renameTheme")->forceActiveFocus();
    find("renameTheme")->setProperty("text", QStringLiteral("a?b"));
    press(window(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return !page().theme()->nameProblem().isEmpty(); }));
    find("renameTheme")->setProperty("text", QStringLiteral("Deep Sea"));
    press(window(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return page().theme()->name() == QLatin1String("Deep Sea"); }));
    EXPECT_EQ(themes().front().name, "Deep Sea");
    page().theme()->renameIcon(named(kMail), named(kNotes));
    ASSERT_TRUE(waitFor([&] { return iconColour(kNotes) == QColor(Qt::cyan); }));

    ASSERT_TRUE(click("binTheme"));
    EXPECT_THAT(staged().pendingThemeDeletions, ElementsAre(ocean.themeID));
    ASSERT_TRUE(waitFor([] { return click("undo Deep Sea"); }));
    EXPECT_THAT(staged().pendingThemeDeletions, IsEmpty());
    EXPECT_FALSE(managers().pendingChanges.hasPendingChanges());
}

TEST_F(ThemesViewTest, MakesAThemeOfTheTickedPicturesOfAFolder) {
    startEmpty();
    for (const char* name :
         {"Safari.png", "com.apple.mail.png", "notes.png", "Dictionry.png", "nothing-like-it.png"})
        write(name);
    dropOn("themeLibrary", {folder.path()});
    FolderImportModel& import = *page().folderImport();
    ASSERT_TRUE(waitFor([&] { return import.phase() == FolderImportModel::Review && find("tick Mail"); }));
    EXPECT_THAT(themes(), IsEmpty());
    EXPECT_EQ(import.tickedCount(), 3);
    EXPECT_EQ(import.guessCount(), 1);
    EXPECT_THAT(textOf("importUnmatched"), HasSubstr("nothing-like-it.png"));

    ASSERT_TRUE(click("tick Mail"));
    import.setThemeName(QStringLiteral("a|b"));
    EXPECT_EQ(textOf("importProblem"), "Theme name contains invalid characters");
    EXPECT_FALSE(click("takeImport"));
    import.setThemeName(QStringLiteral("Candy"));
    ASSERT_TRUE(click("takeImport"));
    ASSERT_TRUE(finishes());
    ASSERT_EQ(themes().size(), 1u);
    std::vector<std::string> apps;
    for (const ThemeIcon& icon : managers().themes.library().icons(themes().front().themeID))
        apps.push_back(icon.bundleID);
    EXPECT_THAT(apps, ElementsAre(kNotes, kSafari));
    ASSERT_TRUE(waitFor([] { return textOf("shownThemeName") == "Candy"; }));
}

TEST_F(ThemesViewTest, TakesBackAThemeThatItHandedOut) {
    startWithTheme();
    const HostPath file = folder.path() / page().exportName(named(ocean.themeID)).toStdString();
    page().exportTheme(named(ocean.themeID), QUrl::fromLocalFile(named(file.string())));
    ASSERT_TRUE(waitFor([&] { return bool(readHostFile(file)); }));
    ASSERT_TRUE(finishes());
    EXPECT_FALSE(page().work()->isFailure()) << page().work()->outcome().toStdString();
    dropOn("themeLibrary", {file});
    ASSERT_TRUE(finishes());
    ASSERT_TRUE(waitFor([&] { return page().library()->count() == 2; }));
    std::map<std::string, std::size_t> icons;
    for (const Theme& theme : themes())
        icons.emplace(theme.name, managers().themes.library().icons(theme.themeID).size());
    EXPECT_THAT(icons, ElementsAre(std::pair("Ocean", 3u), std::pair("Ocean 2", 3u)));

    // What is no theme says so where it was dropped.
    dropOn("themeLibrary", {write("broken.tavriktheme")});
    ASSERT_TRUE(finishes());
    EXPECT_TRUE(page().work()->isFailure());
    EXPECT_THAT(textOf("themeOutcome"), HasSubstr("Invalid theme format"));
    EXPECT_EQ(themes().size(), 2u);
}

TEST_F(ThemesViewTest, ReplacesNoFileUnasked) {
    startWithTheme();
    const HostPath file = write("Ocean.tavriktheme");
    const auto before = readHostFile(file);
    const auto exportIt = [&](const char* answer) {
        page().exportTheme(named(ocean.themeID), QUrl::fromLocalFile(named(file.string())));
        ASSERT_TRUE(waitFor([&] { return click(answer); })) << answer;
        ASSERT_TRUE(waitFor([&] { return !find(answer); }));
        ASSERT_TRUE(finishes());
    };
    exportIt("confirm-cancel");
    EXPECT_EQ(*readHostFile(file), *before);
    exportIt("confirm-go");
    EXPECT_NE(*readHostFile(file), *before);
}

TEST_F(ThemesViewTest, AsksForFilesByDialogs) {
    startWithTheme();
    const auto choose = [&](const char* asks, const char* property, const HostPath& chosen) {
        ASSERT_TRUE(waitFor([&] { return click(asks); })) << asks;
        chooseInPanel(property, QUrl::fromLocalFile(named(chosen.string())));
        ASSERT_TRUE(finishes());
    };
    const HostPath file = folder.path() / "Ocean.tavriktheme";
    openTheme("Safari");
    choose("exportTheme", "selectedFile", file);
    EXPECT_TRUE(waitFor([&] { return bool(readHostFile(file)); }));
    ASSERT_TRUE(finishes());
    page().showLibrary();
    choose("importTheme", "selectedFile", file);
    EXPECT_TRUE(waitFor([&] { return themes().size() == 2; }));
    write("Mail.png");
    choose("importFolder", "selectedFolder", folder.path());
    EXPECT_TRUE(waitFor([&] { return page().folderImport()->tickedCount() == 1; }));
}

TEST_F(ThemesViewTest, TakesPicturesByTheTileOrByTheirNames) {
    startWithTheme();
    openTheme("Safari");
    QMimeData held;
    held.setUrls({QUrl::fromLocalFile(named(write("Mail.png", Qt::magenta).string()))});
    ASSERT_TRUE(dragOnto(find("icon Safari"), held));
    EXPECT_TRUE(waitFor([] { return find("themeDropPreview") != nullptr; }));
    dragAway(find("icon Safari"));
    EXPECT_EQ(find("themeDropPreview"), nullptr);
    EXPECT_NE(iconColour(kSafari), QColor(Qt::magenta));
    dropOn("icon Safari", {write("Mail.png", Qt::magenta)});
    ASSERT_TRUE(finishes());
    EXPECT_EQ(iconColour(kSafari), QColor(Qt::magenta));
    EXPECT_EQ(iconColour(kMail), QColor(Qt::cyan));

    dropOn("themeDropHint", {write("Notes.png", Qt::yellow), write("unheard-of.png")});
    ASSERT_TRUE(finishes());
    EXPECT_EQ(iconColour(kNotes), QColor(Qt::yellow));
    ASSERT_EQ(page().work()->details().size(), 1);
    EXPECT_THAT(page().work()->details().front().toStdString(), HasSubstr("unheard-of.png"));

    dropOn("themeDropHint", {folder.path() / "letter.pdf"});
    EXPECT_THAT(model().notices()->text().toStdString(), HasSubstr("letter.pdf"));
}

TEST_F(ThemesViewTest, LaysPreviewsOutAsTheSettingsWindowSaysAndRemembersIt) {
    startWithTheme();
    model().openSettings();
    model().preferences()->setTab(PreferencesPage::Tab::Themes);
    for (const char* const name : {"themes-grid", "themes-names"})
        ASSERT_TRUE(waitFor([&] { return Stagehand::click(QString::fromLatin1(name)); })) << name;
    QQuickItem* const library = window()->contentItem();
    EXPECT_TRUE(findIn(library, QStringLiteral("previewStyle"))->property("value").toBool());
    EXPECT_TRUE(findIn(library, QStringLiteral("showFileNames"))->property("checked").toBool());
    ASSERT_TRUE(Stagehand::click(findIn(library, QStringLiteral("showFileNames"))));
    EXPECT_FALSE(Stagehand::find(QStringLiteral("themes-names"))->property("checked").toBool());
    model().preferences()->themeLook()->setShowsFileNames(true);
    offMain([] {});
    startEmpty();
    EXPECT_TRUE(waitFor([&] { return page().look()->showsGrid() && page().look()->showsFileNames(); }));
}

} // namespace tavrik::test
