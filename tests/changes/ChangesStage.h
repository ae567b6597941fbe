#pragma once

#include "changes/PendingChangesManager.h"
#include "fonts/FontReplacer.h"
#include "icons/IconCache.h"
#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "platform/NotificationCenter.h"
#include "platform/PropertyList.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <QImage>

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

namespace tavrik::test {

inline const std::string kAtlas = "com.example.atlas";

/// What staging needs of the program; another one over the same volume is the program after a restart.
struct Program {
    explicit Program(Mac& mac)
        : settings(mac),
          cache(mac.files),
          store(mac.files, settings, cache),
          transfer(mac.files, settings, store),
          changes(mac, settings, fonts, store, transfer, notifications) {}

    SettingsManager settings;
    FontReplacer fonts;
    IconCache cache;
    IconStore store;
    IconTransfer transfer;
    NotificationCenter notifications;
    PendingChangesManager changes;
};

/// A Mac with icons of one colour each; the colour's number tells them apart wherever they are.
class ChangesStage : public testing::Test {
protected:
    using Numbers = std::vector<int>;

    void restart() {
        program.reset();
        files.failNothing();
        program = std::make_unique<Program>(small.mac);
    }

    /// After a restart.
    bool recover() {
        restart();
        return changes().recover();
    }

    /// The icon saved and staged. False when it could not be.
    bool add(int number, const std::string& bundleID = kAtlas) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(QRgb(0xFF000000U + static_cast<unsigned>(number)));
        const auto path = program->store.savePendingIcon(image, bundleID);
        return path && changes().addIcon(bundleID, *path);
    }

    /// Brings all that is staged into effect, as an apply does. True when it came to its end.
    bool apply() {
        if (!changes().savePendingChangesToTempFile())
            return false;
        StagedChanges staged = changes().staged();
        std::vector<IconTransfer::Application> applications;
        for (const auto& [bundleID, change] : staged.pendingChanges)
            applications.push_back({bundleID, change.iconPaths, staged.markedForDeletion[bundleID]});
        if (!program->transfer.begin(applications))
            return false;
        for (const auto& [bundleID, change] : staged.pendingChanges) {
            const auto places = program->transfer.run(bundleID);
            const auto selected = static_cast<std::size_t>(change.selectedIndex.value_or(-1));
            const auto place = selected < places.size() ? places[selected] : std::nullopt;
            program->settings.setSelectedIcon(bundleID, place ? iconIndex(place->name()) : std::nullopt);
        }
        changes().noteApplied();
        return !changes().hasPendingChanges() && !files.exists(changes().tempFileURL());
    }

    Numbers numbersOf(const std::vector<MacPath>& icons) const {
        Numbers numbers;
        for (const MacPath& icon : icons) {
            const auto content = small.files.read(icon, FileManager::kLargestRead);
            const auto image = content ? QImage::fromData(QByteArrayView(*content)) : QImage();
            numbers.push_back(image.isNull() ? -1 : static_cast<int>(image.pixel(0, 0) & 0xFFFFFF));
        }
        return numbers;
    }

    /// The icons of the row, staged changes included, and the chosen one; -1 for the application's own.
    struct Row {
        Numbers shown;
        int chosen = -1;

        bool operator==(const Row&) const = default;

        friend void PrintTo(const Row& row, std::ostream* out) {
            *out << testing::PrintToString(row.shown) << " chosen " << row.chosen;
        }
    };

    Row row(const std::string& bundleID = kAtlas) const {
        const IconRow icons = program->changes.iconRow(bundleID);
        Row found{.shown = numbersOf(icons.displayPaths())};
        if (icons.selectedIconIndex >= 0)
            found.chosen = found.shown.at(static_cast<std::size_t>(icons.selectedIconIndex));
        return found;
    }

    /// Every icon file of the application, pending ones included, in no order.
    Numbers onDisk(const std::string& bundleID = kAtlas) const {
        Numbers numbers = numbersOf(program->store.listIcons(bundleID));
        for (const int number : numbersOf(program->store.listPendingIcons(bundleID)))
            numbers.push_back(number);
        return sorted(std::move(numbers));
    }

    static Numbers sorted(Numbers numbers) {
        std::ranges::sort(numbers);
        return numbers;
    }

    void writeRecoveryFile(const plist::Dictionary& root) {
        ASSERT_TRUE(files.write(changes().tempFileURL(), *plist::serialize(root, plist::Format::xml)));
    }

    PendingChangesManager& changes() { return program->changes; }

    const PendingChangesManager& changes() const { return program->changes; }

    MacPath pending(const std::string& name) const { return changes().pendingIconsBaseURL() / kAtlas / name; }

    MacPath permanent(const std::string& name) const { return program->store.iconCacheURL() / kAtlas / name; }

    LogRecorder log; ///< before what logs
    SmallMac small;
    FailingFileManager& files = small.files;
    std::unique_ptr<Program> program = std::make_unique<Program>(small.mac);
};

} // namespace tavrik::test
