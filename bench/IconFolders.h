#pragma once

#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/practice/PracticeMac.h"

#include <cstdlib>
#include <string>

namespace tavrik::bench {

/// The icon files of a furnished practice Mac and what keeps them in memory, silent.
struct Icons {
    explicit Icons(const HostPath& root) : practice(root) { setLogStream(nullptr); }

    /// Puts the same picture there as so many icons of an application, with their thumbnails. Ends the process
    /// when it cannot.
    std::vector<MacPath> fill(const std::string& bundleID, int count, const QImage& picture);

    practice::PracticeMac practice;
    FileManager& files = practice.mac().files;
    SettingsManager settings{practice.mac()};
    IconCache cache{files};
    IconStore store{files, settings, cache};
};

} // namespace tavrik::bench
