#include "RunningCompanion.h"
#include "platform/ChildProcess.h"
#include "platform/practice/Layout.h"
#include "practice/dock/Dock.h"

#include <signal.h>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;

namespace {

using CompanionInRealTime = RunningCompanion;

/// What Python's readers make of all property lists and the database: its health, then its rows.
QStringList readByPython(const HostPath& root) {
    constexpr const char* kScript = R"(
import pathlib, plistlib, sqlite3, sys
root = pathlib.Path(sys.argv[1])
lists = [p for p in root.rglob('*.plist') if p.is_file() and not p.is_symlink() and not p.name.startswith('._')]
assert {'AppSettings.plist', 'com.apple.dock.plist'} <= {p.name for p in lists}
for path in lists:
    plistlib.loads(path.read_bytes())
db = sqlite3.connect(next(root.rglob('com.apple.dock.launchpad/db/db')))
print(db.execute('PRAGMA integrity_check').fetchone()[0],
      *db.execute("SELECT value FROM dbinfo WHERE key='ignore_items_update_triggers'").fetchone())
for row in db.execute('SELECT i.rowid, i.flags, i.parent_id, i.ordering, a.bundleid FROM items i '
                      'LEFT JOIN apps a ON a.item_id = i.rowid ORDER BY i.rowid'):
    print(*row)
)";
    const auto result = runChild(HostPath("/usr/bin/python3"), {"-c", kScript, root.string()}, {});
    return QString::fromStdString(result ? result->output + result->errors : "none").split(u'\n');
}

int livingProcesses(const FileManager& volume) {
    const auto records = volume.list(practice::kProcessFolder);
    int living = 0;
    for (const std::string& name : *records)
        living += ::kill(std::stoi(name.substr(name.rfind('.') + 1)), 0) == 0 ? 1 : 0;
    return living;
}

} // namespace

TEST_F(CompanionInRealTime, RestylesAnApplicationOfTheDockAndGivesItBack) {
    run({"apps"});
    const auto tile = [&](const char* field) {
        return json({"dock"})[1][QLatin1String(field)].toString().toStdString();
    };
    const std::string bundleID = tile("bundleID");
    const std::string original = tile("path");
    ASSERT_TRUE(practice::writeDockBehaviour(root, {.restartDelay = 0.1, .indexDelay = 0.5, .indexes = true}));
    const QStringList rowsBefore = readByPython(root);
    EXPECT_EQ(rowsBefore[0], QLatin1String("ok 0"));
    const FileTree appsBefore = treeOf(root / "Applications");

    const std::string pink = picture("new.png", QColor(255, 0, 200));
    EXPECT_THAT(run({"wrapper", "create", bundleID, pink}).output,
                HasSubstr("Successfully swapped to tavrik app"));
    EXPECT_EQ(livingProcesses(volume), 0) << "no Dock outlives the program";
    EXPECT_THAT(tile("path"), HasSubstr("/Applications/Tavrik/"));
    const QJsonArray wrappers = json({"wrapper", "list"}).array();
    ASSERT_EQ(wrappers.size(), 1);
    const qint64 wrapperRow = wrappers[0][QLatin1String("tavrikRowID")].toInteger();
    const QStringList rows = readByPython(root);
    EXPECT_EQ(rows[0], QLatin1String("ok 0"));
    EXPECT_EQ(rows.size(), rowsBefore.size() + 1);

    run({"wrapper", "remove", bundleID});
    EXPECT_EQ(tile("path"), original);
    EXPECT_EQ(json({"wrapper", "list"}), QJsonDocument(QJsonArray()));
    QStringList rowsAfter = readByPython(root);
    rowsAfter.removeIf([&](const QString& row) { return row.startsWith(QString::number(wrapperRow) + u' '); });
    EXPECT_EQ(rowsAfter, rowsBefore);
    EXPECT_EQ(differences(appsBefore, treeOf(root / "Applications")), std::vector<std::string>());
    EXPECT_EQ(livingProcesses(volume), 0);
}
