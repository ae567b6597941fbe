#include "backups/LaunchpadCleaning.h"

#include "backups/PlainTitles.h"
#include "backups/TemporaryDatabase.h"
#include "backups/WrapperRowsCleaning.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Threads.h"
#include "platform/Volume.h"

#include <optional>
#include <string>

namespace tavrik {

namespace {

struct Counts {
    std::size_t titles = 0;
    std::size_t wrappers = 0;
    std::size_t hiddenFlagWrappers = 0;

    bool any() const { return titles + wrappers + hiddenFlagWrappers > 0; }
};

void debug(const std::string& text) {
    log("  🔵 DEBUG: " + text);
}

/// Nothing when the database cannot be read or written.
std::optional<Counts> cleanRows(sqlite::Connection& database, const Bookmarks& bookmarks,
                                SettingsManager& settings, const FontReplacer& fonts) {
    PlainTitles titles(database, bookmarks, settings, fonts);
    debug("Processing apps...");
    const auto apps = titles.cleanApps();
    if (!apps)
        return std::nullopt;
    debug("Processing folders...");
    const auto folders = titles.cleanFolders();
    if (!folders)
        return std::nullopt;

    debug("Looking for the rows of tavrik apps...");
    WrapperRowsCleaning rows(database, bookmarks, settings);
    if (!rows.find() || !rows.swapBack())
        return std::nullopt;
    const auto wrappers = rows.removeWrappers();
    if (!wrappers)
        return std::nullopt;
    debug("Removed the rows of " + std::to_string(*wrappers) + " tavrik apps");
    debug("Starting to clean hidden flag tavrik apps...");
    const auto hiddenFlagWrappers = rows.removeHiddenFlagWrappers();
    if (!hiddenFlagWrappers)
        return std::nullopt;
    return Counts{*apps + *folders, *wrappers, *hiddenFlagWrappers};
}

} // namespace

LaunchpadCleaning::LaunchpadCleaning(Mac& mac, SettingsManager& settings, const FontReplacer& fonts)
    : m_mac(mac),
      m_settings(settings),
      m_fonts(fonts),
      m_temporaryFile(MacPath(mac.volume.temporaryFolder()) / "launchpad_temp.db") {}

Bytes LaunchpadCleaning::clean(Bytes database) {
    assertOffMainThread("The cleaning of a Launchpad database");
    debug("Starting cleanLaunchpadDatabase");
    debug("Original data size: " + std::to_string(database.size()));
    debug("Creating temp database file...");
    TemporaryDatabase temporary(m_mac, m_temporaryFile);
    if (const Status opened = temporary.open(database); !opened) {
        debug(opened.error().description);
        log("⚠️ Could not open Launchpad database for cleaning (error: " + std::to_string(opened.error().code) +
            ")");
        return database;
    }

    const auto cleaned = cleanRows(temporary.connection(), m_mac.bookmarks, m_settings, m_fonts);
    const auto giveUp = [&](const std::string& reason) {
        debug(reason);
        debug("Exception caught, returning original data");
        return std::move(database);
    };
    if (!cleaned)
        return giveUp(temporary.connection().lastError());
    Result<Bytes> result = Bytes();
    if (!cleaned->any()) {
        log("  ℹ️ No styled names found in Launchpad database");
    } else {
        result = temporary.finish();
        if (!result)
            return giveUp(result.error().description);
        log(std::to_string(cleaned->titles) + " styled names in Launchpad database");
        log(std::to_string(cleaned->hiddenFlagWrappers) + " hidden flag tavrik apps from backup");
    }
    debug("cleanLaunchpadDatabase complete!");
    return cleaned->any() ? std::move(*result) : database;
}

bool LaunchpadCleaning::cleanInPlace(sqlite::Connection& copy) {
    if (!copy.disableTriggers())
        return false;
    sqlite::Transaction change(copy, "BEGIN");
    return cleanRows(copy, m_mac.bookmarks, m_settings, m_fonts) && change.commit();
}

void LaunchpadCleaning::removeLeftovers() {
    if (const Status removed = TemporaryDatabase::remove(m_mac, m_temporaryFile); !removed)
        log("⚠️ Could not remove " + m_temporaryFile.string() + ": " + removed.error().description);
}

} // namespace tavrik
