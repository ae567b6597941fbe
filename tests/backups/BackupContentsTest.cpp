#include "BackupStage.h"
#include "backups/BackupArchive.h"
#include "platform/ChildProcess.h"
#include "platform/Machine.h"
#include "platform/PropertyList.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <filesystem>

namespace tavrik::test {
namespace {

using testing::HasSubstr;

std::string digest(const Bytes& bytes) {
    const QByteArray data(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    return QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().toStdString();
}

struct BackupContentsTest : BackupStage {
    Bytes sealed(const ArchiveMembers& members) const { return *container.seal(*createArchive(members)); }

    const BackupContainer container{mac.machine, mac.random};
    const BackupContents sound = live();
    const MacPath file = practice::kHome / "one.encrypted";
};

TEST_F(BackupContentsTest, AreRefusedForTheFirstFaultFoundAndARestoreTouchesNothing) {
    const auto& [dock, launchpad] = sound;
    auto other = sqlite::Connection::open(volume.host(MacPath("/other")), sqlite::OpenMode::readWriteCreate);
    ASSERT_TRUE(
        other->execute("CREATE TABLE items (a); CREATE TABLE apps (a); CREATE VIEW groups AS SELECT 1"));
    const Bytes otherDatabase = *launchpadAt(MacPath("/other"));
    Bytes damaged = launchpad;
    std::fill(damaged.end() - 4096, damaged.end(), std::uint8_t{0xFF}); // its last page
    Bytes flipped = sealed({{kDockMember, dock}, {kLaunchpadMember, launchpad}});
    flipped[20] ^= 1;
    const Bytes array = *plist::serialize(plist::Array{}, plist::Format::xml);
    const auto pair = [&](const Bytes& first, const Bytes& second) {
        return sealed({{kDockMember, first}, {kLaunchpadMember, second}});
    };

    const std::string sealing = "❌ Failed to decrypt backup", archive = "❌ Failed to extract backup archive";
    const std::string damage = "❌ Failed to restore backup files: ";

    const struct {
        const char* name;
        std::optional<Bytes> content;
        const char* sentence;
        std::string line;
    } cases[] = {
        {"missing", {}, "cannot be read", sealing},
        {"cut short", Bytes(27), "is damaged, cut short", sealing},
        {"flipped", flipped, "is damaged, cut short", sealing},
        {"no list", *container.seal(Bytes(500, 1)), "opens, but what is in it is no archive", archive},
        {"an array", *container.seal(array), "opens, but what is in it is no archive", archive},
        {"nothing in it", sealed({}), "holds no Dock", "❌ Dock plist not found in backup"},
        {"one member", sealed({{kDockMember, dock}}), "holds no L",
         "❌ Launchpad database not found in backup"},
        {"an array as the Dock's", pair(array, launchpad), "The Dock preferences in", damage},
        {"both empty", pair({}, {}), "The Dock preferences in", damage},
        {"no bytes", pair(dock, {}), "The Launchpad database in", damage},
        {"another database", pair(dock, otherDatabase), "The Launchpad database in", damage},
        {"a damaged page", pair(dock, damaged), "The Launchpad database in", damage},
    };

    for (const auto& [name, content, sentence, line] : cases) {
        SCOPED_TRACE(name);
        if (content)
            put(file, *content);
        const FileTree before = treeOf(volume.root());
        const std::string found = inWords(std::get<BackupFault>(backups().readBackup(file)));
        EXPECT_THAT(found, HasSubstr(sentence));
        EXPECT_EQ(backups().restoreBackup(file).error().description, found);
        EXPECT_EQ(log.lines().back(), line == damage ? line + found : line);
        EXPECT_THAT(differences(before, treeOf(volume.root())), testing::IsEmpty());
    }
    std::filesystem::resize_file(volume.host(file).string(), FileManager::kLargestRead + 1);
    EXPECT_EQ(std::get<BackupFault>(backups().readBackup(file)), BackupFault::unreadable);
}

TEST_F(BackupContentsTest, AreWhatAnotherReaderOfTheFormatFinds) {
    const auto& [dock, launchpad] = sound;
    put(file, sealed({{kDockMember, dock}, {kLaunchpadMember, launchpad}}));
    const auto script =
        runChild(HostPath("/usr/bin/python3"),
                 {OPEN_BACKUP, volume.host(file).string(), mac.machine.serialNumber().value()}, {});
    ASSERT_TRUE(script);
    EXPECT_THAT(script->output, HasSubstr(R"("integrity": "ok", "launchpad": ["Safari", )")) << script->errors;
    EXPECT_THAT(script->output, HasSubstr(R"("members": {"com.apple.dock.plist": ")" + digest(dock) +
                                          R"(", "launchpad.db": ")" + digest(launchpad) + "\"}}"));
}

} // namespace
} // namespace tavrik::test
