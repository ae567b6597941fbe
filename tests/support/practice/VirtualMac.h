#pragma once

#include "platform/Mac.h"
#include "platform/RecordingClock.h"
#include "platform/practice/PracticeMac.h"
#include "practice/session/VirtualSession.h"
#include "support/FailingFileManager.h"
#include "support/practice/PracticeVolume.h"

namespace tavrik::test {

/// A furnished Mac with its session in virtual time, and files that fail on demand. Needs
/// tavrik_practice_session.
struct VirtualMac {
    PracticeVolume volume;
    RecordingClock clock;
    practice::VirtualSession session{volume.root(), clock};
    practice::PracticeMac practice{volume.root(), {.clock = &clock, .tools = &session}};
    FailingFileManager files{practice.mac().files};
    Mac& own = practice.mac();
    Mac mac{own.volume,   files,       own.bookmarks, own.workspace, session,    own.notifications,
            own.defaults, own.machine, clock,         own.alerts,    own.random, own.localNotifications};
};

} // namespace tavrik::test
