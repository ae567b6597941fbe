#include "backups/BackupFolder.h"

#include "platform/Log.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <ctime>

namespace tavrik::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;
using Names = std::vector<std::string>;

const std::string kOriginal = BackupFolder::kOriginalState;

/// A folder of backups in virtual time, two hours east of Greenwich.
class BackupFolderTest : public testing::Test {
protected:
    BackupFolderTest() {
        setenv("TZ", "TST-2", 1);
        tzset();
    }

    ~BackupFolderTest() override {
        unsetenv("TZ");
        tzset();
    }

    MacPath at(const std::string& name) const { return folder.path() / name; }

    /// A backup of that age.
    void put(const std::string& name, double day) {
        ASSERT_TRUE(files.createFolder(folder.path()));
        ASSERT_TRUE(files.create(at(name), bytesOf(name)));
        ASSERT_TRUE(files.setModified(at(name), Date{day * 86'400}));
    }

    Names backups() const {
        Names names;
        for (const auto& entry : folder.entries())
            names.push_back(entry.url.name());
        return names;
    }

    Names all() const { return *files.list(folder.path()); }

    std::string content(const std::string& name) const {
        return std::string(textOf(*files.read(at(name), FileManager::kLargestRead)));
    }

    LogRecorder log;
    SmallMac small;
    FailingFileManager& files = small.files;
    const MacPath support{"/Users/practice/Library/Application Support/com.tavrik.Tavrik"};
    BackupFolder folder{small.mac, support};
};

TEST_F(BackupFolderTest, NamesBackupsByTheLocalTimeAndWaitsForANewName) {
    small.clock.sleep(250ms); // 2026-05-09 06:13:20.25 UTC
    small.clock.forgetWaits();
    EXPECT_EQ(folder.add(bytesOf("first"), true)->name(), kOriginal);
    for (const char* name : {"2026-05-09_08-13-20", "2026-05-09_08-13-21", "2026-05-09_08-13-22"})
        EXPECT_EQ(folder.add(bytesOf(name), false)->stem(), name);
    EXPECT_THAT(small.clock.waits(), ElementsAre(750ms, 1000ms));
    for (const Names& last = all(); const std::string& name : last)
        EXPECT_EQ(content(name), name == kOriginal ? "first" : MacPath(name).stem());

    // Whatever is there keeps its name: a link to nothing, a folder, a backup that appears at the last moment.
    ASSERT_TRUE(files.createLink(at("2026-05-09_08-13-23.encrypted"), "nowhere"));
    ASSERT_TRUE(files.createFolder(at("2026-05-09_08-13-24.encrypted")));
    small.clock.sleep(1000ms);
    files.setRule([this](const FileOperation& move) -> std::optional<int> {
        const bool isRace = move.name == "move" && move.path.stem() == "2026-05-09_08-13-25";
        return isRace && !small.mac.files.exists(move.path) ? std::optional(EEXIST) : std::nullopt;
    });
    EXPECT_EQ(folder.add(bytesOf("x"), false)->stem(), "2026-05-09_08-13-26");
}

TEST_F(BackupFolderTest, NeverTakesATakenName) {
    put("a.encrypted", 1);
    ASSERT_TRUE(files.createLink(at(kOriginal), "elsewhere"));
    EXPECT_FALSE(folder.add(bytesOf("another"), true));
    folder.rotate(3, {});
    EXPECT_TRUE(log.mentions("Failed to rename backup to Original State: "));
    files.failOn("move", {}, EEXIST);
    EXPECT_FALSE(folder.add(bytesOf("x"), false));
    EXPECT_EQ(small.clock.waits().size(), 10u);
    EXPECT_THAT(all(), ElementsAre(kOriginal, "a.encrypted"));
}

TEST_F(BackupFolderTest, TakesPlainFilesOfItsOwnForBackups) {
    EXPECT_THAT(backups(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty()) << "a missing folder is no failure";
    for (const char* name : {"b.encrypted", "a.encrypted", "c.encrypted.new", "d.txt", ".b.encrypted"})
        put(name, 1);
    put("old.encrypted", 0);
    ASSERT_TRUE(files.createFolder(at("folder.encrypted")));
    ASSERT_TRUE(files.createLink(at("link.encrypted"), "a.encrypted"));
    EXPECT_THAT(backups(), ElementsAre("old.encrypted", "a.encrypted", "b.encrypted"));

    folder.removeLeftovers();
    EXPECT_THAT(all(), ElementsAre(".b.encrypted", "a.encrypted", "b.encrypted", "d.txt", "folder.encrypted",
                                   "link.encrypted", "old.encrypted"));
    for (const char* operation : {"list", "attributes"}) {
        files.failOn(operation, {}, EIO);
        EXPECT_FALSE(folder.read()) << "not known to be empty";
        EXPECT_THAT(backups(), IsEmpty());
        EXPECT_TRUE(log.mentions("Failed to list backups: "));
    }
}

TEST_F(BackupFolderTest, RefusesFoldersThatAreLinks) {
    const MacPath victim("/victim/Backups");
    ASSERT_TRUE(files.createFolder(victim) && files.create(victim / "old.encrypted", bytesOf("precious")));
    for (const MacPath& link : {folder.path(), support}) {
        ignoreFailure(files.remove(support));
        ASSERT_TRUE(files.createFolder(link.parent()));
        ASSERT_TRUE(files.createLink(link, link == support ? "/victim" : "/victim/Backups"));
        EXPECT_FALSE(folder.add(bytesOf("x"), false));
        folder.rotate(1, {});
        folder.removeLeftovers();
        EXPECT_THAT(backups(), IsEmpty());
        EXPECT_THAT(*files.list(victim), ElementsAre("old.encrypted"));
    }
}

TEST_F(BackupFolderTest, RotatesByAge) {
    const struct {
        const char* what;
        Names before; ///< the oldest first
        std::int64_t keep;
        Names after; ///< what was made the original state under its first name
        std::string madeOriginal{};
        std::string spared{};
        std::string cannotDelete{};
    } cases[] = {
        {"the oldest goes", {kOriginal, "z", "b", "c"}, 2, {kOriginal, "b", "c"}},
        {"however new the original state is", {"z", "b", "c", kOriginal}, 2, {kOriginal, "b", "c"}},
        {"one at least stays", {kOriginal, "a", "b"}, -7, {kOriginal, "b"}},
        {"the original state was deleted", {"c", "b", "a"}, 5, {"c", "b", "a"}, "c"},
        {"after the old ones went", {"c", "b", "a"}, 2, {"b", "a"}, "b"},
        {"none", {}, 1, {}},
        {"spared", {kOriginal, "a", "b", "c"}, 1, {kOriginal, "a", "c"}, "", "a"},
        {"spared as the original state", {"a", "b", "c"}, 1, {"a", "c"}, "", "a"},
        {"not to be deleted", {kOriginal, "a", "b", "c"}, 1, {kOriginal, "a", "c"}, "", "", "a"},
        {"nor made newer", {"a", "b", "c"}, 1, {"a", "c"}, "a", "", "a"},
    };

    const auto full = [](const std::string& name) { return name == kOriginal ? name : name + ".encrypted"; };
    for (const auto& [what, before, keep, after, madeOriginal, spared, cannotDelete] : cases) {
        SCOPED_TRACE(what);
        ignoreFailure(files.remove(folder.path()));
        ASSERT_TRUE(files.createFolder(folder.path()));
        for (std::size_t day = 0; day < before.size(); ++day)
            put(full(before[day]), static_cast<double>(day));
        log.clear();
        files.failOn("remove", at(full(cannotDelete)), EPERM);
        folder.rotate(keep, {at(full(spared))});
        files.failNothing();

        Names expected;
        for (const std::string& name : after)
            expected.push_back(name == madeOriginal ? kOriginal : full(name));
        EXPECT_THAT(all(), UnorderedElementsAreArray(expected));
        EXPECT_EQ(log.mentions("Failed to delete old backup: "), !cannotDelete.empty());
        EXPECT_TRUE(madeOriginal.empty() || content(kOriginal) == full(madeOriginal));
        EXPECT_EQ(log.has("♻️ Renamed oldest backup to Original State: " + full(madeOriginal)),
                  !madeOriginal.empty());
        for (const std::string& name : before)
            EXPECT_EQ(log.has("🗑️ Deleted old backup: " + full(name)), std::ranges::count(after, name) == 0);
    }
}

} // namespace
} // namespace tavrik::test
