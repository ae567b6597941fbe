#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/tools/SystemTools.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace tavrik::practice {
namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

const MacPath kFile = kPreferencesFolder / "com.apple.dock.plist";

struct DefaultsTest : testing::Test {
    DefaultsTest() {
        EXPECT_TRUE(files.createFolder(kPreferencesFolder));
        EXPECT_TRUE(files.write(kFile, *plist::serialize(original, plist::Format::xml)));
    }

    ToolAnswer run(std::vector<std::string> arguments, const char* domain = "com.apple.dock") {
        arguments.insert(arguments.begin() + 1, domain);
        return runSystemTool({folder.path(), Date{794'000'000.25}, {}}, MacPath("/usr/bin/defaults"),
                             arguments);
    }

    test::TemporaryFolder folder;
    PracticeFileManager files{folder.path()};
    plist::Value original = plist::Dictionary{
        {"autohide", true},
        {"book", Bytes{1, 0xFF}},
        {"last", Date{86'400}},
        {"orientation", "left side"},
        {"persistent-apps", plist::Array{plist::Dictionary{{"GUID", -7}, {"tile-type", "file-tile"}}, "b\"c"}},
        {"tilesize", 48.5}};
};

TEST_F(DefaultsTest, ReadsValuesAsTheMacPrintsThem) {
    const std::pair<const char*, const char*> cases[] = {
        {"autohide", "1\n"},
        {"book", "{length = 2, bytes = 0x01ff}\n"},
        {"last", "2001-01-02 00:00:00 +0000\n"},
        {"orientation", "left side\n"},
        {"persistent-apps", "(\n    {\n        GUID = \"-7\";\n        \"tile-type\" = \"file-tile\";\n    "
                            "},\n    \"b\\\"c\"\n)\n"},
        {"tilesize", "48.5\n"},
    };
    for (const auto& [key, text] : cases)
        EXPECT_EQ(run({"read", key}).output, text);
    EXPECT_THAT(run({"read"}).output, StartsWith("{\n    autohide = 1;\n    book = {length"));
}

TEST_F(DefaultsTest, SaysWhatDoesNotExist) {
    const ToolAnswer answer = run({"read", "missing"});
    EXPECT_EQ(answer.exitStatus, 1);
    EXPECT_THAT(answer.errors, StartsWith("2026-02-28 19:33:20.250 defaults["));
    EXPECT_THAT(answer.errors,
                EndsWith("] \nThe domain/default pair of (com.apple.dock, missing) does not exist\n"));
    ASSERT_TRUE(files.remove(kFile));
    EXPECT_THAT(run({"read"}).errors, EndsWith("\nDomain com.apple.dock does not exist\n"));
    EXPECT_EQ(run({"delete", "autohide"}).exitStatus, 1);
}

TEST_F(DefaultsTest, WritesOneKeyAndKeepsEveryOther) {
    const std::pair<std::vector<std::string>, plist::Value> cases[] = {
        {{"write", "RecentlyUsedApps", "-bool", "true"}, true},
        {{"write", "autohide", "-bool", "NO"}, false},
        {{"write", "count", "-int", "-9000000000"}, std::int64_t{-9'000'000'000}},
        {{"write", "tilesize", "-float", "36"}, 36.0},
        {{"write", "name", "-string", "-int"}, "-int"},
        {{"write", "plain", "12"}, "12"},
    };
    plist::Value expected = original;
    for (const auto& [arguments, value] : cases) {
        const ToolAnswer answer = run(arguments);
        EXPECT_TRUE(answer.exitStatus == 0 && answer.errors.empty()) << arguments[1];
        expected.as<plist::Dictionary>()->insert_or_assign(arguments[1], value);
    }
    EXPECT_THAT(textOf(*files.read(kFile)), StartsWith("bplist00"));
    EXPECT_EQ(run({"delete", "name"}).exitStatus, 0);
    expected.as<plist::Dictionary>()->erase("name");
    EXPECT_EQ(**readPropertyList(files, kFile), expected);
}

TEST_F(DefaultsTest, RefusesWhatItCannotWriteAndChangesNothing) {
    const Bytes before = *files.read(kFile);
    for (const auto& [type, value] :
         {std::pair{"-bool", "perhaps"}, {"-int", "1x"}, {"-float", ""}, {"-date", "today"}})
        EXPECT_EQ(run({"write", "k", type, value}).exitStatus, 1) << type;
    EXPECT_EQ(*files.read(kFile), before);

    ASSERT_TRUE(files.write(kFile, bytesOf("bplist00 cut short")));
    EXPECT_THAT(run({"write", "k", "-bool", "true"}).errors,
                EndsWith("\nCould not write domain com.apple.dock; exiting\n"));
    EXPECT_EQ(textOf(*files.read(kFile)), "bplist00 cut short");

    EXPECT_EQ(run({"write", "k", "-bool", "true"}, "../../escaped").exitStatus, 1);
    EXPECT_FALSE(files.exists(kHome / "escaped.plist"));
}

} // namespace
} // namespace tavrik::practice
