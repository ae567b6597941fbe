#pragma once

#include "changes/apply/ApplyPipeline.h"
#include "changes/apply/ApplySnapshot.h"
#include "changes/apply/ApplyStores.h"

#include <QImage>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

class QObject;

namespace tavrik {

enum class Next { goOn, stop };

/// One run of the pipeline: what its steps hand on to each other.
struct ApplyRun {
    ApplyRun(const ApplyServices& services, QObject* window) : with(services), parentWindow(window) {}

    const ApplyServices& with;
    QObject* parentWindow; ///< looked at on the main thread alone

    ApplySnapshot snapshot;
    ApplyStores before;
    ApplyPlan plan;

    /// Where the icon that each application is to carry is read from, known once its icons have their places.
    /// None for the application's own icon.
    std::map<std::string, MacPath> chosenIcons;
    /// The numbers of the icons that were in use before, as the icons are numbered now.
    std::map<std::string, std::optional<std::int64_t>> earlierIcons;
    /// Theme icons that are chosen, read before their themes may go.
    std::map<std::string, QImage> themeImages;

    double stepsDone = 0;
    bool changedWrappers = false; ///< some wrapper was made, removed or given another icon
    bool createdWrappers = false;
    bool changedTitles = false;

    ApplyResult result;

    /// Status line and bar; the value counts in applications, halves included.
    void report(const std::string& status) const;
    /// A random one of the phrases for the work on applications.
    std::string magicPhrase() const;

    void fail(const ApplicationInfo& app, const std::string& reason);
    bool hasFailed(const std::string& bundleID) const;

    /// Whether a styled alphabet or plain text will be written, given what has happened so far.
    bool needsFontOperation() const;
};

} // namespace tavrik
