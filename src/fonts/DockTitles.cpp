#include "fonts/DockTitles.h"

#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"
#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Tools.h"
#include "platform/UserDefaults.h"
#include "system/DockManager.h"
#include "system/DockTiles.h"

#include <chrono>
#include <cstdint>
#include <utility>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr int kFirstCount = 4; ///< counts down to 1: three tries
constexpr auto kBeforeNextTry = 500ms;

constexpr int kMostWrites = 5;
constexpr auto kBeforeNextWrite = 1000ms;
constexpr auto kAfterWrite = 200ms;
constexpr auto kAfterFlush = 100ms;
constexpr auto kAfterNotification = 100ms;
constexpr auto kAfterHangUp = 500ms; ///< the Dock's time to end and to be started again
constexpr auto kAfterTouch = 100ms;

/// "mod-count"; nothing where it is missing or no integer.
std::optional<std::int64_t> modCount(const plist::Value& dock) {
    const auto* count = dock.find<std::int64_t>("mod-count");
    return count ? std::optional(*count) : std::nullopt;
}

} // namespace

struct DockTitles::Relabelling {
    dock::Tile tile;
    std::string plain;
    std::string label;
};

DockTitles::DockTitles(Mac& mac, DockManager& dock, const FontReplacer& replacer)
    : m_mac(mac),
      m_dock(dock),
      m_replacer(replacer) {}

void DockTitles::style(const std::string& fontName) {
    tryRepeatedly({.fontName = fontName,
                   .tile = "Applying font to Dock app: ",
                   .unreadable = "Failed to read Dock plist for font application",
                   .retrying = "Font application to Dock failed, retrying... (",
                   .givenUp = "WARNING: Failed to apply font to Dock after multiple attempts"});
}

void DockTitles::reset() {
    tryRepeatedly({.fontName = {},
                   .tile = "Resetting font for Dock app to: ",
                   .unreadable = "Failed to read Dock plist for font reset",
                   .retrying = "Font reset in Dock failed, retrying... (",
                   .givenUp = "WARNING: Failed to reset fonts in Dock after multiple attempts"});
}

void DockTitles::tryRepeatedly(const Task& task) {
    for (int left = kFirstCount; left > 1;) {
        if (rewrite(task))
            return;
        --left;
        log(task.retrying + std::to_string(left) + " attempts left)");
        m_mac.clock.sleep(kBeforeNextTry);
    }
    log(task.givenUp);
}

bool DockTitles::rewrite(const Task& task) {
    if (!m_mac.files.exists(m_dock.dockPlistPath())) {
        log("Dock plist does not exist at: " + m_dock.dockPlistPath().string());
        return false;
    }
    std::optional<plist::Value> dock = m_dock.readDockPlist();
    if (!dock) {
        log(task.unreadable);
        return false;
    }

    auto changes = relabellings(*dock, task.fontName);
    for (Relabelling& change : changes) {
        log(task.tile + change.plain);
        change.tile.setLabel(change.label);
    }
    if (changes.empty()) {
        log("No font changes needed in Dock");
        return true;
    }
    const std::string count = std::to_string(changes.size()) + " Dock items, writing changes...";
    if (task.fontName.empty()) {
        log("Writing Dock plist to ensure reset...");
        log("Reset fonts for " + count);
    } else {
        log(count);
    }

    if (!std::exchange(m_isBackedUp, true))
        m_dock.backupDockPlist();
    dock::raiseModCount(*dock);
    return writeVerified(std::move(*dock), task.fontName);
}

bool DockTitles::writeVerified(plist::Value dock, std::string_view fontName) {
    for (int attempt = 1; attempt <= kMostWrites; ++attempt) {
        const std::string number = " (attempt " + std::to_string(attempt) + ")";
        if (!m_dock.writeDockPlist(dock)) {
            log("Failed to write Dock plist" + number);
            if (attempt < kMostWrites)
                m_mac.clock.sleep(kBeforeNextWrite);
            continue;
        }
        log("Successfully wrote Dock plist" + number);
        showToDock();

        std::optional<plist::Value> found = m_dock.readDockPlist();
        if (found && holds(*found, dock, fontName)) {
            log("Verified Dock plist write successful");
            sync();
            return true;
        }
        log("WARNING: Dock plist verification failed, retrying...");
        m_mac.clock.sleep(kBeforeNextWrite);
        if (!found)
            continue;
        // What the Dock wrote over ours may hold more than old labels: a tile that the user has just added.
        for (Relabelling& change : relabellings(*found, fontName))
            change.tile.setLabel(change.label);
        dock::raiseModCount(*found);
        dock = std::move(*found);
    }
    log("ERROR: Failed to write Dock plist after " + std::to_string(kMostWrites) + " attempts");
    return false;
}

/// Whether what was read back is as new as what was written, and every label in it as wanted.
bool DockTitles::holds(plist::Value& found, const plist::Value& written, std::string_view fontName) const {
    const auto wanted = modCount(written);
    return (!wanted || modCount(found) >= wanted) && relabellings(found, fontName).empty();
}

/// The tiles whose label is not as it should be.
std::vector<DockTitles::Relabelling> DockTitles::relabellings(plist::Value& dock,
                                                              std::string_view fontName) const {
    std::vector<Relabelling> changes;
    for (const dock::Tile& tile : dock::labelledTiles(dock)) {
        std::string plain = plainLabel(*tile.label(), *tile.url(), m_replacer);
        std::string label = m_replacer.convert(plain, fontName);
        if (label != *tile.label())
            changes.push_back({tile, std::move(plain), std::move(label)});
    }
    return changes;
}

void DockTitles::showToDock() {
    m_mac.clock.sleep(kAfterWrite);
    m_mac.defaults.flushDockDomain();
    m_mac.clock.sleep(kAfterFlush);
    m_mac.notifications.post("com.apple.dock.prefchanged");
    m_mac.clock.sleep(kAfterNotification);
    ignoreFailure(m_mac.tools.run(MacPath("/usr/bin/killall"), {"-HUP", "Dock"}));
    m_mac.clock.sleep(kAfterHangUp);
}

void DockTitles::sync() {
    log("Forcing Dock sync...");
    m_mac.defaults.flushDockDomain();
    m_mac.clock.sleep(kAfterFlush);
    // Touching a file that is not there would make an empty one, which the Dock cannot read.
    if (m_mac.files.exists(m_dock.dockPlistPath()))
        ignoreFailure(m_mac.tools.run(MacPath("/usr/bin/touch"), {m_dock.dockPlistPath().string()}));
    m_mac.clock.sleep(kAfterTouch);
    ignoreFailure(m_mac.tools.run(MacPath("/usr/bin/defaults"), {"read", "com.apple.dock", "mod-count"}));
    m_mac.defaults.flushDockDomain();
    log("Dock sync complete");
}

} // namespace tavrik
