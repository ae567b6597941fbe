#include "RunningCompanion.h"
#include "platform/ChildProcess.h"
#include "platform/Sqlite.h"
#include "practice/dock/Dock.h"

#include <gmock/gmock.h>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;

namespace {

/// Every row of the database with its placement and identifier, a line each.
std::vector<std::string> launchpadRows(const HostPath& root) {
    const HostPath file = root / "private/var/folders/tv/practice/0/com.apple.dock.launchpad/db/db";
    auto connection = sqlite::Connection::open(file, sqlite::OpenMode::readOnly);
    std::vector<std::string> rows;
    auto statement = connection->prepare(
        "SELECT i.rowid || ' ' || ifnull(i.flags, 'NULL') || ' ' || i.parent_id || ' ' || i.ordering || ' ' || "
        "ifnull(a.bundleid, '') FROM items i LEFT JOIN apps a ON a.item_id = i.rowid ORDER BY i.rowid");
    while (statement.step() == sqlite::Step::row)
        rows.push_back(*statement.text(0));
    return rows;
}

/// What Python's own readers make of every property list and of the database: "ok", or the first complaint.
std::string readByOthers(const HostPath& root) {
    constexpr const char* kScript = R"(
import pathlib, plistlib, sqlite3, sys
root = pathlib.Path(sys.argv[1])
lists = [p for p in root.rglob('*.plist') if p.is_file() and not p.is_symlink() and not p.name.startswith('._')]
assert any(p.name == 'AppSettings.plist' for p in lists) and any(p.name == 'com.apple.dock.plist' for p in lists)
for path in lists:
    try:
        plistlib.loads(path.read_bytes())
    except Exception as error:
        sys.exit(f'{path}: {error!r}')
for path in root.rglob('com.apple.dock.launchpad/db/db'):
    with sqlite3.connect(path) as db:
        print(db.execute('PRAGMA integrity_check').fetchone()[0],
              db.execute("SELECT value FROM dbinfo WHERE key='ignore_items_update_triggers'").fetchone()[0])
)";
    const auto result = runChild(HostPath("/usr/bin/python3"), {"-c", kScript, root.string()}, {});
    return result ? result->output + result->errors : result.error().description;
}

} // namespace

TEST(CompanionInRealTime, RestylesAnApplicationOfTheDockAndGivesItBack) {
    const RunningCompanion companion;
    const QJsonArray dock = companion.json({"dock", "--json"});
    const std::string bundleID = dock[1].toObject()[QLatin1String("bundleID")].toString().toStdString();
    const std::string original = dock[1].toObject()[QLatin1String("path")].toString().toStdString();
    ASSERT_TRUE(practice::writeDockBehaviour(companion.root(),
                                             {.restartDelay = 0.1, .indexDelay = 0.5, .indexes = true}));

    const HostPath file = companion.picture("new.png", QColor(255, 0, 200));
    const auto rowsBefore = launchpadRows(companion.root());
    const FileTree appsBefore = treeOf(companion.root() / "Applications");
    const ToolResult created = companion.run({"wrapper", "create", bundleID, file.string()});
    ASSERT_EQ(created.exitStatus, 0) << created.output << created.errors;
    EXPECT_THAT(created.output, HasSubstr("Successfully swapped to tavrik app"));
    EXPECT_EQ(companion.livingProcesses(), 0) << "no Dock may outlive the program";

    EXPECT_EQ(readByOthers(companion.root()), "ok 0\n");
    const QJsonArray restyled = companion.json({"dock", "--json"});
    EXPECT_THAT(restyled[1].toObject()[QLatin1String("path")].toString().toStdString(),
                HasSubstr("/Applications/Tavrik/"));
    const QJsonArray wrappers = companion.json({"wrapper", "list", "--json"});
    ASSERT_EQ(wrappers.size(), 1);
    const qint64 wrapperRow = wrappers[0].toObject()[QLatin1String("tavrikRowID")].toInteger();
    EXPECT_EQ(launchpadRows(companion.root()).size(), rowsBefore.size() + 1);

    const ToolResult removed = companion.run({"wrapper", "remove", bundleID});
    ASSERT_EQ(removed.exitStatus, 0) << removed.output << removed.errors;
    EXPECT_EQ(companion.json({"dock", "--json"})[1].toObject()[QLatin1String("path")].toString().toStdString(),
              original);
    EXPECT_TRUE(companion.json({"wrapper", "list", "--json"}).isEmpty());
    auto rowsAfter = launchpadRows(companion.root());
    std::erase_if(rowsAfter,
                  [&](const std::string& row) { return row.starts_with(std::to_string(wrapperRow) + " "); });
    EXPECT_EQ(rowsAfter, rowsBefore);
    EXPECT_EQ(differences(appsBefore, treeOf(companion.root() / "Applications")), std::vector<std::string>());
    EXPECT_EQ(companion.livingProcesses(), 0);
}
