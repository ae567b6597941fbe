#include "backups/BackupContents.h"

#include "backups/BackupArchive.h"
#include "backups/BackupContainer.h"
#include "platform/ChildProcess.h"
#include "platform/PropertyList.h"
#include "platform/SqliteCopy.h"
#include "practice/furnish/LaunchpadDatabaseBuilder.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/NumberedMachine.h"
#include "support/SmallMac.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace tavrik {

namespace {

constexpr const char* kSerial = "C02TAVRIK001";

Bytes dockPlist() {
    const auto tile = [](const char* label) {
        return plist::Dictionary{{"tile-data", plist::Dictionary{{"file-label", label}}}};
    };
    return *plist::serialize(
        plist::Dictionary{{"persistent-apps", plist::Array{tile("Atlas"), tile("Ƈompass")}}},
        plist::Format::binary);
}

std::string digest(const Bytes& bytes) {
    const QByteArray data(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    return QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().toStdString();
}

class BackupContentsTest : public testing::Test {
protected:
    Bytes sealed(const ArchiveMembers& members) { return *m_container.seal(*createArchive(members)); }

    /// As the Dock keeps it, the write-ahead mode in its header.
    Bytes makeDatabase() {
        practice::LaunchpadDatabaseBuilder builder(m_file);
        const auto page = builder.addPage();
        for (const char* title : {"Atlas", "𝓒ompass"})
            builder.addApp(page, {title, "com.example.a", Bytes(300, 7), {}, {}});
        EXPECT_TRUE(builder.finish());
        return *sqlite::copyOf(m_file);
    }

    BackupReading read(const ArchiveMembers& members) { return read(sealed(members)); }

    BackupReading read(ByteView file) {
        EXPECT_TRUE(m_mac.files.write(m_backup, file));
        return readBackup(m_mac.files, m_container, m_backup);
    }

    static std::optional<BackupFault> faultOf(const BackupReading& reading) {
        const auto* fault = std::get_if<BackupFault>(&reading);
        return fault ? std::optional(*fault) : std::nullopt;
    }

    test::SmallMac m_mac;
    test::LogRecorder m_log;
    test::NumberedMachine m_machine{kSerial};
    const BackupContainer m_container{m_machine, m_mac.mac.random};
    const MacPath m_backup{"/one.encrypted"};
    const HostPath m_file = m_mac.mac.volume.hostPath(MacPath("/db"));
    const BackupContents m_sound{dockPlist(), makeDatabase()};
};

} // namespace

TEST_F(BackupContentsTest, AreReadBackAndNothingIsLeft) {
    const auto reading =
        read({{kDockMember, m_sound.dockPlist}, {kLaunchpadMember, m_sound.launchpadDatabase}});
    const auto* contents = std::get_if<BackupContents>(&reading);
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->dockPlist, m_sound.dockPlist);
    EXPECT_EQ(contents->launchpadDatabase, m_sound.launchpadDatabase);
    EXPECT_THAT(test::treeOf(m_mac.folder.path()),
                testing::ElementsAre(testing::Key("db"), testing::Key("one.encrypted")));
    EXPECT_THAT(m_log.lines(), testing::IsEmpty());
}

TEST_F(BackupContentsTest, AreRefusedForTheFirstFaultFound) {
    const auto& [dock, database] = m_sound;
    auto other = sqlite::Connection::open(m_mac.folder.path() / "other", sqlite::OpenMode::readWriteCreate);
    ASSERT_TRUE(
        other->execute("CREATE TABLE items (a); CREATE TABLE apps (a); CREATE VIEW groups AS SELECT 1"));
    const Bytes otherDatabase = *sqlite::copyOf(m_mac.folder.path() / "other");
    Bytes damaged = database;
    std::fill(damaged.end() - 4096, damaged.end(), std::uint8_t{0xFF}); // its last page
    const Bytes array = *plist::serialize(plist::Array{}, plist::Format::xml);

    const struct {
        const char* name;
        BackupFault fault;
        BackupReading reading;
    } cases[] = {
        {"sealed elsewhere", BackupFault::sealed, read(Bytes(500, 1))},
        {"cut short", BackupFault::sealed, read(Bytes(27))},
        {"no list", BackupFault::noArchive, read(*m_container.seal(Bytes(500, 1)))},
        {"an array", BackupFault::noArchive, read(*m_container.seal(array))},
        {"nothing in it", BackupFault::noDockPlist, read(ArchiveMembers())},
        {"one member", BackupFault::noDatabase, read({{kDockMember, dock}})},
        {"an array as the Dock's", BackupFault::damagedDockPlist,
         read({{kDockMember, array}, {kLaunchpadMember, database}})},
        {"both empty", BackupFault::damagedDockPlist, read({{kDockMember, {}}, {kLaunchpadMember, {}}})},
        {"no bytes", BackupFault::damagedDatabase, read({{kDockMember, dock}, {kLaunchpadMember, {}}})},
        {"another database", BackupFault::damagedDatabase,
         read({{kDockMember, dock}, {kLaunchpadMember, otherDatabase}})},
        {"a damaged page", BackupFault::damagedDatabase,
         read({{kDockMember, dock}, {kLaunchpadMember, damaged}})},
    };

    for (const auto& each : cases)
        EXPECT_EQ(faultOf(each.reading), each.fault) << each.name;
}

TEST_F(BackupContentsTest, AreNotReadFromAFileThatIsMissingOrBeyondTheLimit) {
    EXPECT_EQ(faultOf(readBackup(m_mac.files, m_container, m_backup)), BackupFault::unreadable);
    ASSERT_TRUE(m_mac.files.write(m_backup, {}));
    std::filesystem::resize_file(m_mac.mac.volume.hostPath(m_backup).string(), FileManager::kLargestRead + 1);
    EXPECT_EQ(faultOf(readBackup(m_mac.files, m_container, m_backup)), BackupFault::unreadable);
    EXPECT_EQ(m_log.count("Failed to read backup file"), 2);
}

TEST_F(BackupContentsTest, AreWhatAnotherReaderOfTheFormatFinds) {
    const auto& [dock, database] = m_sound;
    ASSERT_TRUE(m_mac.files.write(m_backup, sealed({{kDockMember, dock}, {kLaunchpadMember, database}})));
    const auto script = runChild(HostPath("/usr/bin/python3"),
                                 {OPEN_BACKUP, m_mac.mac.volume.hostPath(m_backup).string(), kSerial}, {});
    ASSERT_TRUE(script);
    EXPECT_EQ(
        script->output,
        R"({"dock": ["Atlas", "\u0187ompass"], "integrity": "ok", "launchpad": ["Atlas", "\ud835\udcd2ompass"], )"
        R"("members": {"com.apple.dock.plist": ")" +
            digest(dock) + R"(", "launchpad.db": ")" + digest(database) + "\"}}")
        << script->errors;
}

} // namespace tavrik
