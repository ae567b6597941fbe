#pragma once

#include "platform/Mac.h"
#include "platform/RecordingClock.h"
#include "platform/Volume.h"
#include "platform/practice/PracticeMac.h"
#include "support/FailingFileManager.h"
#include "support/TemporaryFolder.h"

namespace tavrik::test {

/// A bare practice Mac: an empty volume in a temporary folder, virtual time, and files that fail on demand.
struct SmallMac {
    TemporaryFolder folder;
    RecordingClock clock;
    practice::PracticeMac practice{folder.path(), {.clock = &clock}};
    FailingFileManager files{practice.mac().files};
    Mac mac{.volume = practice.mac().volume,
            .files = files,
            .bookmarks = practice.mac().bookmarks,
            .workspace = practice.mac().workspace,
            .tools = practice.mac().tools,
            .notifications = practice.mac().notifications,
            .defaults = practice.mac().defaults,
            .machine = practice.mac().machine,
            .clock = clock,
            .alerts = practice.mac().alerts,
            .random = practice.mac().random,
            .localNotifications = practice.mac().localNotifications};
};

} // namespace tavrik::test
