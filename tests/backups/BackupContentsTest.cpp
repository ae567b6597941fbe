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
#include "tests/backups/Hex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <openssl/sha.h>

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

std::string digest(ByteView bytes) {
    std::array<std::uint8_t, SHA256_DIGEST_LENGTH> digest{};
    SHA256(bytes.data(), bytes.size(), digest.data());
    return test::hex(digest);
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

    BackupReading read() { return readBackup(m_mac.files, m_container, m_backup); }

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
    const Bytes file =
        sealed({{kDockMember, m_sound.dockPlist}, {kLaunchpadMember, m_sound.launchpadDatabase}});
    ASSERT_TRUE(m_mac.files.write(m_backup, file));
    const auto before = test::treeOf(m_mac.folder.path());
    const auto reading = read();
    const auto* contents = std::get_if<BackupContents>(&reading);
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->dockPlist, m_sound.dockPlist);
    EXPECT_EQ(contents->launchpadDatabase, m_sound.launchpadDatabase);
    EXPECT_EQ(test::treeOf(m_mac.folder.path()), before);
    EXPECT_THAT(m_log.lines(), testing::IsEmpty());
}

TEST_F(BackupContentsTest, AreRefusedWithTheFirstFaultFound) {
    const Bytes& dock = m_sound.dockPlist;
    const Bytes& database = m_sound.launchpadDatabase;
    auto other = sqlite::Connection::open(m_mac.folder.path() / "other", sqlite::OpenMode::readWriteCreate);
    ASSERT_TRUE(
        other->execute("CREATE TABLE items (a); CREATE TABLE apps (a); CREATE VIEW groups AS SELECT 1"));
    Bytes damaged = database;
    std::fill(damaged.end() - 4096, damaged.end(), std::uint8_t{0xFF}); // its last page
    const auto list = [](const plist::Value& value) { return *plist::serialize(value, plist::Format::xml); };

    const struct {
        const char* name;
        BackupFault fault;
        Bytes file;
    } cases[] = {
        {"sealed elsewhere", BackupFault::sealed, Bytes(500, 1)},
        {"cut short", BackupFault::sealed, Bytes(27)},
        {"no list", BackupFault::noArchive, *m_container.seal(Bytes(500, 1))},
        {"an array", BackupFault::noArchive, *m_container.seal(list(plist::Array{}))},
        {"nothing in it", BackupFault::noDockPlist, sealed({})},
        {"one member", BackupFault::noDatabase, sealed({{kDockMember, dock}})},
        {"an array as the Dock's", BackupFault::damagedDockPlist,
         sealed({{kDockMember, list(plist::Array{})}, {kLaunchpadMember, database}})},
        {"both empty", BackupFault::damagedDockPlist, sealed({{kDockMember, {}}, {kLaunchpadMember, {}}})},
        {"an empty database", BackupFault::damagedDatabase,
         sealed({{kDockMember, dock}, {kLaunchpadMember, {}}})},
        {"another database", BackupFault::damagedDatabase,
         sealed({{kDockMember, dock}, {kLaunchpadMember, *sqlite::copyOf(m_mac.folder.path() / "other")}})},
        {"a damaged page", BackupFault::damagedDatabase,
         sealed({{kDockMember, dock}, {kLaunchpadMember, damaged}})},
    };

    for (const auto& each : cases) {
        ASSERT_TRUE(m_mac.files.write(m_backup, each.file));
        const auto reading = read();
        const auto* fault = std::get_if<BackupFault>(&reading);
        ASSERT_TRUE(fault) << each.name;
        EXPECT_EQ(*fault, each.fault) << each.name;
    }
}

TEST_F(BackupContentsTest, AreNotReadFromAFileThatIsMissingOrBeyondTheLimit) {
    for (const bool exists : {false, true}) {
        if (exists) {
            ASSERT_TRUE(m_mac.files.write(m_backup, {}));
            std::filesystem::resize_file(m_mac.mac.volume.hostPath(m_backup).string(),
                                         FileManager::kLargestRead + 1);
        }
        m_log.clear();
        const auto reading = read();
        const auto* fault = std::get_if<BackupFault>(&reading);
        EXPECT_TRUE(fault && *fault == BackupFault::unreadable);
        EXPECT_THAT(m_log.lines(), testing::ElementsAre("Failed to read backup file"));
    }
}

TEST_F(BackupContentsTest, AreWhatAnotherReaderOfTheFormatFinds) {
    const Bytes& dock = m_sound.dockPlist;
    const Bytes& database = m_sound.launchpadDatabase;
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
