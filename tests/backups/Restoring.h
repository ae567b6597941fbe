#pragma once

#include "app/Managers.h"
#include "platform/FileManager.h"
#include "platform/PathRules.h"
#include "platform/RecordingClock.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "practice/picture/Picture.h"
#include "support/practice/PracticeVolume.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

inline const MacPath kDatabase = launchpadDatabasePath(practice::kTemporaryFolder);
inline const MacPath kDockFile = dockPreferencesPath(practice::kHome);
inline const MacPath kWrappers = wrapperFolder(practice::kHome);

/// What a person sees of a Mac, and what stands behind it. Drawing needs the application object of Qt Gui.
struct Look {
    explicit Look(const PracticeVolume& volume)
        : picture(*practice::drawPicture(volume.root())),
          rows(volume.launchpadItems()),
          tiles(volume.pinnedTiles()) {}

    QImage picture;
    std::vector<LaunchpadItem> rows;
    std::vector<PinnedTile> tiles;
};

inline void expectLook(const PracticeVolume& volume, const Look& expected) {
    const Look now(volume);
    EXPECT_TRUE(now.picture == expected.picture) << "the picture is another one";
    EXPECT_THAT(now.rows, testing::ContainerEq(expected.rows));
    EXPECT_THAT(now.tiles, testing::ContainerEq(expected.tiles));
}

/// Restores a sealed backup into a Mac of the same number that has lost both stores and all settings.
inline void expectRestoresTo(const Bytes& backup, const Look& before) {
    const PracticeVolume volume;
    RecordingClock clock;
    practice::PracticeMac practice{volume.root(), {.clock = &clock}};
    Mac& mac = practice.mac();
    for (const MacPath& lost : {kDatabase.parent().parent(), kDockFile, practice::kApplicationSupport})
        ASSERT_TRUE(!mac.files.exists(lost) || mac.files.remove(lost)) << lost.string();
    Managers managers(mac);
    const MacPath file = practice::kHome / "Brought along.encrypted";
    ASSERT_TRUE(mac.files.create(file, backup));
    EXPECT_TRUE(managers.backups.restoreBackup(file));
    expectLook(volume, before);
}

} // namespace tavrik::test
