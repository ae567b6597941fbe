#include "practice/dock/Dock.h"

#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/dock/LaunchpadIndex.h"
#include "practice/dock/RegisteredBundle.h"

#include <sqlite3.h>

#include <cstdint>
#include <optional>
#include <utility>

namespace tavrik::practice {

namespace {

void setCheckpointOnClose(sqlite::Connection& database, bool wanted) {
    sqlite3_db_config(database.handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, wanted ? 0 : 1, nullptr);
}

/// One more change than before. A counter that is no number, as re-saved files have, starts again.
void countChange(plist::Value& preferences) {
    auto* entries = preferences.as<plist::Dictionary>();
    if (!entries)
        return;
    const auto* count = preferences.find<std::int64_t>("mod-count");
    (*entries)["mod-count"] = count ? *count + 1 : std::int64_t{1};
}

} // namespace

struct Dock::State {
    explicit State(HostPath volume)
        : root(std::move(volume)),
          files(root),
          preferencesFile(dockPreferencesPath(kHome)) {}

    void openDatabase();
    LaunchpadIndex::Outcome removeMissing();

    HostPath root;
    PracticeFileManager files;
    MacPath preferencesFile;
    std::optional<plist::Value> preferences; ///< nothing when they could not be read
    std::optional<sqlite::Connection> database;
    bool removalPending = true;
};

void Dock::State::openDatabase() {
    if (database)
        return;
    const auto file = files.hostPath(launchpadDatabasePath(kTemporaryFolder), Links::follow);
    if (!file)
        return;
    database = sqlite::Connection::open(*file, sqlite::OpenMode::readWrite);
    if (!database)
        return;
    setCheckpointOnClose(*database, false);
    // The first read brings the write-ahead log into being, and recovers the one of a killed Dock.
    if (!database->execute("PRAGMA journal_mode=WAL; SELECT COUNT(*) FROM items"))
        database.reset();
}

LaunchpadIndex::Outcome Dock::State::removeMissing() {
    const auto outcome = LaunchpadIndex(*database, files).removeMissing(registeredBundles(files));
    removalPending = outcome == LaunchpadIndex::Outcome::locked;
    return outcome;
}

Dock::Dock(HostPath root) : m_state(std::make_unique<State>(std::move(root))) {
    if (auto preferences = readPropertyList(m_state->files, m_state->preferencesFile))
        m_state->preferences = std::move(*preferences);
    m_state->openDatabase();
    if (m_state->database)
        m_state->removeMissing();
}

Dock::~Dock() = default;

bool Dock::index() {
    m_state->openDatabase();
    if (!m_state->database)
        return false;
    if (m_state->removalPending && m_state->removeMissing() == LaunchpadIndex::Outcome::locked)
        return false;
    if (!readDockBehaviour(m_state->root).indexes)
        return true;
    const auto outcome =
        LaunchpadIndex(*m_state->database, m_state->files).addNew(registeredBundles(m_state->files));
    return outcome != LaunchpadIndex::Outcome::locked;
}

void Dock::quit() {
    if (m_state->preferences) {
        countChange(*m_state->preferences);
        ignoreFailure(writePropertyList(m_state->files, m_state->preferencesFile, *m_state->preferences));
    }
    if (m_state->database) {
        setCheckpointOnClose(*m_state->database, true);
        m_state->database.reset();
    }
}

} // namespace tavrik::practice
