#include "RunningCompanion.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/dock/Dock.h"

using namespace tavrik;
using namespace tavrik::test;
using namespace testing;

namespace {

const MacPath kBackups = kSupport / "Backups";
const MacPath kOriginal = kBackups / "Original State.encrypted";
const MacPath kDatabase = launchpadDatabasePath(practice::kTemporaryFolder);
const MacPath kDockPlist = dockPreferencesPath(practice::kHome);

class Backups : public RunningCompanion {
protected:
    Backups() { run({"backup", "create"}); }

    std::string id(int place) {
        return json({"backup", "list"})[place][QLatin1String("id")].toString().toStdString();
    }

    sqlite::Connection database() {
        return *sqlite::Connection::open(root / kDatabase.string(), sqlite::OpenMode::readWrite);
    }

    QImage drawn() {
        const std::string file = (own.path() / "drawn.png").string();
        run({"picture", file});
        return QImage(QString::fromStdString(file));
    }
};

} // namespace

TEST_F(Backups, LeadBackToWhatWasThereAndToWhatWasThereBeforeThat) {
    ASSERT_TRUE(practice::writeDockBehaviour(root, {.restartDelay = 0.1, .indexDelay = 0.2, .indexes = true}));
    const auto shown = [&] { return run({"backup", "show", "Original State.encrypted"}).output; };
    EXPECT_THAT(shown(), AllOf(HasSubstr("[Utilities]: Terminal, "), HasSubstr("\nDock: Launchpad, Safari, "),
                               HasSubstr("Nothing has changed.")));
    const QImage before = drawn();

    run({"wrapper", "create", kAtlas, picture("pink.png", QColor(255, 0, 200))});
    EXPECT_NE(drawn(), before);
    EXPECT_THAT(shown(), HasSubstr("Nothing has changed.")) << "a restyled application is none that moved";
    ASSERT_TRUE(database().execute("UPDATE dbinfo SET value='1'; UPDATE items SET ordering = 99, parent_id = "
                                   "(SELECT max(rowid) FROM items "
                                   "WHERE type=3 AND parent_id=1) WHERE rowid = (SELECT item_id FROM apps "
                                   "WHERE bundleid='com.apple.mail'); "
                                   "UPDATE dbinfo SET value='0'"));
    EXPECT_THAT(shown(), EndsWith(":\nMail moved from page 1 to page 3.\n"));

    run({"font", "set", "Fullwidth"});
    const ToolResult restored = run({"backup", "restore", "Original State"});
    const std::string undo = id(0);
    EXPECT_THAT(restored.output, AllOf(HasSubstr("✅ Backup restored successfully\n"),
                                       HasSubstr("\"tavrikctl backup restore " + undo + "\" goes back to it"),
                                       HasSubstr("What was staged is dropped.")));
    EXPECT_EQ(drawn(), before);
    EXPECT_THAT(run({"status"}).output, HasSubstr("Nothing is staged."));
    EXPECT_EQ(json({"wrapper", "list"}), QJsonDocument(QJsonArray()));
    EXPECT_THAT(*volume.list(wrapperFolder(practice::kHome)), IsEmpty());

    run({"backup", "restore", undo});
    EXPECT_THAT(shown(), EndsWith(":\nMail moved from page 1 to page 3.\n"));
}

TEST_F(Backups, AreNotRestoredWhereMacOSRefusesWhatThatNeeds) {
    run({"font", "set", "Small Caps"});
    const MacPath preferences = kDockPlist.parent();
    ASSERT_TRUE(practice::writePropertyList(volume, practice::kRefusedPaths,
                                            plist::Array{plist::Value(preferences.string())}));
    const auto before = treeOf(volume, practice::kHome / "Library/Preferences");
    for (const Arguments& command : {Arguments{"backup", "restore", "Original State"}, Arguments{"apply"},
                                     Arguments{"remove-everything", "--yes"}}) {
        EXPECT_THAT(run(command, 3).errors, AllOf(HasSubstr("macOS keeps it from ~/Library/Preferences."),
                                                  HasSubstr("> Full Disk Access")))
            << command.front();
        EXPECT_THAT(differences(before, treeOf(volume, practice::kHome / "Library/Preferences")), IsEmpty());
    }
    ASSERT_TRUE(volume.remove(practice::kRefusedPaths));
    run({"backup", "restore", "Original State"});
}

TEST_F(Backups, AreListedAndKeptAsManyAsWanted) {
    const MacPath leftover = MacPath(practice::kTemporaryFolder) / "launchpad_temp.db";
    ASSERT_TRUE(volume.write(leftover, bytesOf("plain")));
    run({"backup", "create"});
    EXPECT_FALSE(volume.exists(leftover));
    run({"backup", "create"});
    const QJsonArray backups = json({"backup", "list"}).array();
    ASSERT_EQ(backups.size(), 3);
    EXPECT_GT(id(0), id(1));
    EXPECT_EQ(backups[2].toObject().keys().join(u' ').toStdString(), "date id sizeInKB url");
    EXPECT_NEAR(backups[2][QLatin1String("sizeInKB")].toDouble(),
                static_cast<double>(volume.attributes(kOriginal)->size) / 1000, 1);
    EXPECT_EQ(backups[2][QLatin1String("url")].toString(),
              QStringLiteral("file:///Users/practice/Library/Application%20Support/com.tavrik.Tavrik/Backups/"
                             "Original%20State.encrypted"));
    EXPECT_THAT(run({"backup", "list"}).output,
                ContainsRegex("Original State +[0-9: -]+ [0-9]+ KB +kept for good\n$"));
    EXPECT_THAT(json({"backup", "show", id(0)}).object().keys().join(u' ').toStdString(),
                "date differences dock id launchpad sizeInKB url");

    EXPECT_THAT(run({"backup", "keep", "1"}).output, HasSubstr("the next snapshot deletes 2 backups."));
    EXPECT_EQ(json({"backup", "list"}).array().size(), 3);
    run({"backup", "create"});
    EXPECT_EQ(json({"backup", "list"}).array().size(), 2);
    EXPECT_EQ(id(1), "Original State");
}

TEST_F(Backups, AreNamedPlainlyAndSoundOrNothingIsTouched) {
    Bytes flipped = *volume.read(kOriginal);
    flipped[flipped.size() / 2] ^= 1;
    ASSERT_TRUE(volume.create(kBackups / "flipped.encrypted", flipped));
    ASSERT_TRUE(volume.copy(kOriginal, kSupport / "outside.encrypted"));
    const FileTree before = treeOf(root);
    const std::vector<std::pair<const char*, Arguments>> names{
        {"damaged, cut short", {"flipped"}},
        {"Did you mean \"Original State\"?", {"original state", "Original"}},
        {"\"tavrikctl backup list\" shows what there is.", {"Thursday"}},
        {"That cannot be the name of a backup.",
         {"../outside", kOriginal.string(), "", "..", "x\ny", std::string(256, 'x')}}};
    for (const auto& [sentence, wrong] : names)
        for (const std::string& name : wrong)
            for (const char* command : {"verify", "show", "restore"})
                EXPECT_THAT(run({"backup", command, name}, 1).errors, HasSubstr(sentence)) << command;
    const ToolResult all = run({"backup", "verify"}, 1);
    EXPECT_THAT(all.output, HasSubstr("Original State: good.\n"));
    EXPECT_THAT(all.errors, HasSubstr("flipped: The backup is damaged"));

    for (const char* number : {"0", "00", "-1", "1.5", "", "99999999999999999999"})
        EXPECT_THAT(run({"backup", "keep", number}, 2).errors, HasSubstr("1 or more"));
    run({"backup", "verify", "--all", "text"}, 2);
    run({"backup"}, 2);
    EXPECT_THAT(differences(before, treeOf(root)), IsEmpty());
}

TEST_F(Backups, AreOfThisMacAndOfStoresThatAreWhole) {
    const Bytes number = *volume.read(practice::kSerialNumberFile);
    ASSERT_TRUE(volume.write(practice::kSerialNumberFile, bytesOf("C02OTHER1234")));
    const FileTree before = treeOf(root);
    EXPECT_THAT(run({"backup", "restore", "Original State"}, 1).errors, HasSubstr("another Mac"));
    EXPECT_THAT(differences(before, treeOf(root)), IsEmpty());
    ASSERT_TRUE(volume.write(practice::kSerialNumberFile, number));

    for (const MacPath& store : {kDockPlist, kDatabase}) {
        ASSERT_TRUE(volume.write(store, bytesOf("text")));
        const FileTree broken = treeOf(root);
        const ToolResult shown = run({"backup", "show", "Original State"});
        EXPECT_THAT(shown.output, HasSubstr("Page 1: Safari"));
        EXPECT_THAT(shown.errors, HasSubstr("What has changed since cannot be told. "));
        EXPECT_THAT(run({"backup", "create"}, 1).errors, HasSubstr("No backup was made. "));
        EXPECT_THAT(differences(broken, treeOf(root)), IsEmpty());
        EXPECT_THAT(run({"backup", "restore", "Original State"}).output,
                    HasSubstr("could not be backed up: its files were missing or damaged."));
        EXPECT_THAT(run({"backup", "show", "Original State"}).output, HasSubstr("Nothing has changed."));
    }
}
