#pragma once

#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "icons/list/ApplicationsModel.h"
#include "platform/Png.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"

#include <QGuiApplication>
#include <QImage>

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <memory>

namespace tavrik::test {

inline const std::string kAtlas = "org.example.atlas"; ///< has a tile
inline const std::string kInkwell = "org.example.inkwell";
inline const std::string kMail = "com.apple.mail";                  ///< the system's
inline const std::string kXcode = "com.apple.dt.Xcode";             ///< not to be restyled
inline const std::string kPocketTides = "com.example.pocket-tides"; ///< made for iOS

/// The whole program on a furnished Mac, with both lists, which have been read once.
class ListStage : public testing::Test, protected VirtualMac {
protected:
    ListStage() {
        program.themes.open();
        refresh();
    }

    ApplicationsCoordinator& list() { return lists->userApps; }

    const ApplicationRow& row(const std::string& bundleID = kAtlas) { return *list().find(bundleID); }

    PendingChangesManager& pending() { return program.pendingChanges; }

    /// Runs the main thread until it holds; false after ten seconds.
    template<typename Predicate>
    [[nodiscard]] static bool runUntil(Predicate&& holds) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!holds()) {
            if (std::chrono::steady_clock::now() > deadline)
                return false;
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        }
        return true;
    }

    /// Asks for a reading, and waits until both lists have it.
    template<typename Ask>
    void waitForReadingAfter(Ask&& ask) {
        const auto before = filterings();
        ask();
        ASSERT_TRUE(runUntil([&] { return filterings() > before; }));
    }

    void refresh() {
        waitForReadingAfter([this] { lists->refresh(); });
    }

    /// Adds an icon to Atlas, waits for it, and tells whether it went well.
    bool add(int number) {
        std::optional<bool> outcome;
        const Status begun =
            list().addIcon(kAtlas, picture(number), [&](const Status& status) { outcome = bool(status); });
        return begun && runUntil([&] { return outcome.has_value(); }) && *outcome;
    }

    /// A theme with an icon for Atlas. Its file.
    MacPath addTheme(const std::string& name) {
        clock.sleep(std::chrono::seconds(1)); // themes are ordered by their dates
        const auto theme = program.themes.createTheme(name, {{kAtlas + ".png", *png::encode(picture(1))}});
        EXPECT_TRUE(theme);
        return program.themes.library().iconsOf(theme->themeID) / (kAtlas + ".png");
    }

    static std::string themeOf(const MacPath& icon) { return icon.parent().parent().name(); }

    /// With blanks between them.
    static std::string identifiers(const std::vector<ApplicationRow>& rows) {
        std::string text;
        for (const ApplicationRow& each : rows)
            text += (text.empty() ? "" : " ") + each.app.bundleID;
        return text;
    }

    static QImage picture(int number) {
        QImage image(64, 64, QImage::Format_ARGB32);
        image.fill(QRgb(0xFF000000U + static_cast<unsigned>(number)));
        return image;
    }

    std::ptrdiff_t filterings() const {
        return std::ranges::count_if(log.lines(), [](const std::string& line) {
            return line.starts_with("Applying filters for systemApps");
        });
    }

    int argumentCount = 0;
    QGuiApplication application{argumentCount, nullptr};
    LogRecorder log;
    Managers program{mac};
    std::unique_ptr<SharedCoordinators> lists = std::make_unique<SharedCoordinators>(program);
};

} // namespace tavrik::test
