#pragma once

#include "app/Managers.h"
#include "platform/Alerts.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/Volume.h"
#include "platform/Workspace.h"
#include "platform/practice/Layout.h"
#include "practice/picture/Picture.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"

#include <QGuiApplication>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <map>
#include <memory>

namespace tavrik::test {

inline const std::string kAtlas = "org.example.atlas"; ///< has a tile
inline const std::string kInkwell = "org.example.inkwell";
inline const std::string kCinder = "org.example.cinder";
inline const std::string kFerrule = "org.example.ferrule";             ///< in a folder
inline const std::string kMissionControl = "com.apple.exposelauncher"; ///< its row carries the hidden flag

/// Gives prepared answers, the first button when there is none left, and keeps the questions.
class PreparedAnswers : public Alerts {
public:
    std::size_t ask(const Alert& alert) override {
        asked.push_back(alert);
        if (meanwhile)
            meanwhile();
        if (answers.empty())
            return 0;
        const std::size_t answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<std::size_t> answers;
    std::vector<Alert> asked;
    std::function<void()> meanwhile; ///< as long as a question is shown
};

/// Another workspace with running applications, some of which do not end.
class BusyWorkspace : public Workspace {
public:
    explicit BusyWorkspace(Workspace& workspace) : m_workspace(workspace) {}

    QImage icon(const MacPath& path) const override { return m_workspace.icon(path); }

    bool setIcon(const MacPath& path, const QImage& icon) override { return m_workspace.setIcon(path, icon); }

    bool clearIcon(const MacPath& path) override { return m_workspace.clearIcon(path); }

    std::vector<RunningApplication> runningApplications() const override { return running; }

    bool askToQuit(const std::string& bundleID) override { return forceTerminate(bundleID); }

    bool forceTerminate(const std::string& bundleID) override {
        std::erase_if(running, [&](const RunningApplication& app) {
            return app.bundleID == bundleID && !stubborn.contains(bundleID);
        });
        return true;
    }

    std::vector<RunningApplication> running;
    std::set<std::string> stubborn;

private:
    Workspace& m_workspace;
};

/// A furnished Mac in virtual time and the whole program on it. Icons are of one colour each, whose number
/// tells them apart wherever they are.
class ApplyStage : public testing::Test, protected VirtualMac {
protected:
    ApplyStage() { start(); }

    /// Every snapshot that was taken is sound, and brings an empty Mac to the look of the beginning.
    void TearDown() override {
        for (const MacPath& backup : program->backups.listBackups())
            expectRestores(backup);
    }

    void expectRestores(const MacPath& backup) {
        const PracticeVolume empty;
        practice::PracticeMac other{empty.root(), {.clock = &clock}};
        for (const MacPath& lost : {launchpadDatabasePath(practice::kTemporaryFolder).parent(),
                                    dockPreferencesPath(practice::kHome), practice::kApplicationSupport})
            ASSERT_TRUE(!other.mac().files.exists(lost) || other.mac().files.remove(lost));
        Managers managers(other.mac());
        const MacPath brought = practice::kHome / backup.name();
        ASSERT_TRUE(other.mac().files.create(brought, *mac.files.read(backup)));
        EXPECT_TRUE(managers.backups.restoreBackup(brought));
        EXPECT_EQ(empty.launchpadItems(), firstRows) << backup.string();
        EXPECT_EQ(empty.pinnedTiles(), firstTiles) << backup.string();
        EXPECT_TRUE(*practice::drawPicture(empty.root()) == firstPicture) << backup.string();
    }

    /// Anew, as after a kill.
    void start() {
        program.reset();
        program = std::make_unique<Managers>(whole);
        program->themes.open();
    }

    PendingChangesManager& pending() { return program->pendingChanges; }

    static QImage picture(int number) {
        QImage image(64, 64, QImage::Format_ARGB32);
        image.fill(QRgb(0xFF000000U + static_cast<unsigned>(number)));
        return image;
    }

    /// Adds an icon, which is thereby chosen.
    void add(const std::string& bundleID, int number) {
        const auto path = program->iconStore.savePendingIcon(picture(number), bundleID);
        ASSERT_TRUE(path && pending().addIcon(bundleID, *path));
    }

    /// The application's own icon.
    void chooseNone(const std::string& bundleID) { ASSERT_TRUE(pending().selectIcon(bundleID, std::nullopt)); }

    ApplyResult apply() {
        log.clear();
        clock.forgetWaits();
        ApplyResult result = program->apply.applyChanges();
        QCoreApplication::processEvents();
        for (const auto& app : result.failedApps)
            reports.push_back(app.bundleID + ": " + app.reason);
        return result;
    }

    /// To its end, with nothing failed and everything as planned.
    void expectApplied() {
        const ApplyResult result = apply();
        EXPECT_EQ(result.end, ApplyResult::End::applied) << testing::PrintToString(result.reasons);
        EXPECT_TRUE(result.failedApps.empty()) << testing::PrintToString(reports);
        EXPECT_TRUE(result.isAudited);
        for (const Deviation& deviation : result.deviations)
            ADD_FAILURE() << deviation.sentence;
        EXPECT_FALSE(pending().hasPendingChanges());
        EXPECT_FALSE(mac.files.exists(pending().tempFileURL()));
    }

    /// What a person sees of an application: where it leads, its icon, its title, its tile.
    struct Look {
        bool isWrapper = false;
        int icon = -1; ///< the number of its colour; -1 for its own
        std::string title;
        bool isTileWrapper = false;

        bool operator==(const Look&) const = default;

        friend void PrintTo(const Look& look, std::ostream* out) {
            *out << (look.isWrapper ? "wrapper " : "original ") << look.icon << " '" << look.title << "' tile "
                 << look.isTileWrapper;
        }
    };

    /// In the place where the original first stood.
    Look lookOf(const std::string& bundleID) {
        const LaunchpadItem& first = *std::ranges::find(firstRows, bundleID, &LaunchpadItem::bundleID);
        Look look;
        for (const LaunchpadItem& row : volume.appRows(bundleID)) {
            if (std::tie(row.parent, row.ordering) != std::tie(first.parent, first.ordering))
                continue;
            look.isWrapper = isWrapperPath(row.path);
            look.title = row.title;
            if (look.isWrapper)
                look.icon = static_cast<int>(mac.workspace.icon(row.path).pixel(10, 10) & 0xFFFFFF);
        }
        for (const PinnedTile& tile : volume.pinnedTiles()) {
            if (tile.bundleID == bundleID)
                look.isTileWrapper = isWrapperPath(tile.path);
        }
        return look;
    }

    /// With this icon, a plain title, and its tile if it has one.
    Look restyled(const std::string& bundleID, int icon) {
        const auto tiles = volume.pinnedTiles();
        return {.isWrapper = true,
                .icon = icon,
                .title = std::ranges::find(firstRows, bundleID, &LaunchpadItem::bundleID)->title,
                .isTileWrapper = std::ranges::find(tiles, bundleID, &PinnedTile::bundleID) != tiles.end()};
    }

    int colourOf(const MacPath& icon) {
        return static_cast<int>(program->iconCache.loadImage(icon).pixel(10, 10) & 0xFFFFFF);
    }

    /// The numbers of an application's permanent icons, in their order.
    std::vector<int> permanentIcons(const std::string& bundleID) {
        std::vector<int> numbers;
        for (const MacPath& icon : program->iconStore.listIcons(bundleID))
            numbers.push_back(colourOf(icon));
        return numbers;
    }

    std::string styled(const std::string& text, const std::string& style) {
        return program->fonts.fontReplacer().convert(text, style);
    }

    /// The lines that begin with one of these, in their order.
    std::vector<std::string> linesLike(const std::vector<std::string>& beginnings) const {
        std::vector<std::string> lines;
        for (const std::string& line : log.lines()) {
            if (std::ranges::any_of(beginnings, [&](const auto& start) { return line.starts_with(start); }))
                lines.push_back(line);
        }
        return lines;
    }

    int argumentCount = 0;
    QGuiApplication application{argumentCount, nullptr};

    PreparedAnswers alerts;
    BusyWorkspace workspace{own.workspace};
    Mac whole{mac.volume,   mac.files,   mac.bookmarks, workspace, mac.tools,  mac.notifications,
              mac.defaults, mac.machine, clock,         alerts,    mac.random, mac.localNotifications};
    LogRecorder log;
    std::vector<std::string> reports; ///< of failed applications
    const std::vector<LaunchpadItem> firstRows = volume.launchpadItems();
    const std::vector<PinnedTile> firstTiles = volume.pinnedTiles();
    const QImage firstPicture = *practice::drawPicture(volume.root());
    std::unique_ptr<Managers> program;
};

} // namespace tavrik::test
