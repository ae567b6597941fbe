#include "backups/BackupSummary.h"

#include "platform/PathRules.h"
#include "platform/PosixFileManager.h"
#include "platform/PropertyList.h"
#include "platform/SqliteCopy.h"
#include "platform/practice/Layout.h"
#include "practice/furnish/SampleApps.h"
#include "support/practice/PracticeVolume.h"

#include <gmock/gmock.h>

namespace tavrik {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using Application = LaunchpadLayout::Application;
using Folder = LaunchpadLayout::Folder;
using Page = std::vector<LaunchpadLayout::Item>;
using Tiles = std::vector<LayoutSummary::Tile>;

Application app(const std::string& title) {
    return {RowID{1}, title, "x." + title};
}

Bytes preferences(const plist::Array& apps, const plist::Array& others = {}) {
    return *plist::serialize(plist::Dictionary{{"persistent-apps", apps}, {"persistent-others", others}},
                             plist::Format::binary);
}

/// "-gone +new moved:from>to <tile gone >tile new order".
std::string inShort(const LayoutDifferences& found) {
    std::string text;
    const auto add = [&text](const std::string& part) { text += (text.empty() ? "" : " ") + part; };
    for (const auto& [sign, names] : {std::pair("-", found.onlyBefore), {"+", found.onlyAfter}})
        std::ranges::for_each(names, [&, s = sign](const std::string& name) { add(s + name); });
    for (const auto& [name, from, to] : found.moved)
        add(name + ":" + from + ">" + to);
    for (const auto& [sign, names] : {std::pair("<", found.tilesOnlyBefore), {">", found.tilesOnlyAfter}})
        std::ranges::for_each(names, [&, s = sign](const std::string& name) { add(s + name); });
    if (found.isDockReordered)
        add("order");
    EXPECT_EQ(found.empty(), text.empty());
    return text;
}

plist::Value tile(plist::Dictionary data) {
    return plist::Dictionary{{"tile-data", std::move(data)}};
}

class Summary : public testing::Test {
protected:
    const test::PracticeVolume m_volume;
    BackupContents m_contents{
        *PosixFileManager(m_volume.root()).read(dockPreferencesPath(practice::kHome)),
        *sqlite::copyOf(m_volume.launchpadDatabase()),
    };
};

} // namespace

TEST_F(Summary, TellsThePagesAndTheTilesOfAPair) {
    const auto summary = summaryOf(m_contents);
    ASSERT_TRUE(summary) << summary.error().description;
    EXPECT_EQ(std::get<Application>(summary->launchpad.pages.at(0).at(1)).title, "Mail");
    const auto pinned = practice::sampleDockApps();
    ASSERT_EQ(summary->dock.size(), pinned.size() + 1) << "no spacer, but the folder of downloads";
    for (std::size_t i = 0; i < pinned.size(); ++i)
        EXPECT_EQ(summary->dock[i].bundleID, pinned[i]);
    EXPECT_EQ(summary->dock.back(), (LayoutSummary::Tile{"Downloads", ""}));
}

TEST_F(Summary, TakesTilesAsScriptsAndOldFilesHaveThem) {
    m_contents.dockPlist = preferences({tile({{"file-label", " "}}), tile({{"file-label", "Named"}}), "no tile",
                                        tile({{"bundle-identifier", "x.y"}, {"file-label", 7}}),
                                        plist::Dictionary{{"tile-data", plist::Array{}}}, tile({})},
                                       {tile({{"file-label", "Stack"}})});
    EXPECT_EQ(summaryOf(m_contents)->dock, (Tiles{{"Named", ""}, {"", "x.y"}, {"Stack", ""}}));
    m_contents.dockPlist = *plist::serialize(plist::Dictionary{{"persistent-apps", 3}}, plist::Format::xml);
    EXPECT_THAT(summaryOf(m_contents)->dock, IsEmpty());
}

TEST_F(Summary, SaysWhichHalfCannotBeRead) {
    const auto bytes = [](std::string_view text) { return Bytes(bytesOf(text).begin(), bytesOf(text).end()); };

    const struct {
        Bytes dockPlist;
        Bytes launchpadDatabase;
        const char* named;
    } cases[] = {
        {m_contents.dockPlist, bytes("no database at all"), "The Launchpad database"},
        {m_contents.dockPlist, {}, "The Launchpad database"},
        {bytes("no property list"), m_contents.launchpadDatabase, "The Dock's preferences"},
    };

    for (const auto& [dockPlist, launchpadDatabase, named] : cases) {
        const auto summary = summaryOf({dockPlist, launchpadDatabase});
        ASSERT_FALSE(summary);
        EXPECT_THAT(summary.error().description, HasSubstr(named));
    }
}

TEST(Differences, AreWhatAPersonWouldSeeOfThem) {
    const auto folder = [](const std::string& title, std::vector<Application> apps) {
        return Folder{RowID{9}, title, {std::move(apps)}};
    };
    const Application unnamed{RowID{2}, "", "x.id"};
    const Application styled{RowID{4}, "𝐀", "x.A"};
    const Application anonymous{RowID{3}, "NoID", ""};

    const struct {
        const char* what;
        std::vector<Page> before;
        std::vector<Page> after;
        const char* told;
    } pages[] = {
        {"order within a page is not looked at", {{app("A"), app("B")}}, {{app("B"), app("A")}}, ""},
        {"a title is not an application", {{app("A")}}, {{styled}}, ""},
        {"gone and new, by name",
         {{app("b"), app("C"), app("a")}, {unnamed}},
         {{app("N")}},
         "-a -b -C -x.id +N"},
        {"to another page", {{app("A"), app("B")}}, {{app("B")}, {app("A")}}, "A:page 1>page 2"},
        {"into a folder and out of one",
         {{app("A"), folder("Work", {app("B")})}},
         {{app("B"), folder("Work", {app("A")})}},
         "A:page 1>folder Work B:folder Work>page 1"},
        {"a folder that moves as a whole",
         {{folder("Work", {app("A")})}, {app("B")}},
         {{app("B")}, {folder("Work", {app("A")})}},
         "B:page 2>page 1"},
        {"a folder's new name",
         {{folder("Work", {app("A")})}},
         {{folder("Play", {app("A")})}},
         "A:folder Work>folder Play"},
        {"one of two rows of an application",
         {{app("A"), app("B")}, {app("A")}},
         {{app("B")}, {app("A")}},
         "-A"},
        {"one of two rows moved, and a third",
         {{app("A")}, {app("A"), app("B")}},
         {{app("A"), app("A"), folder("F", {app("A")})}, {app("B")}},
         "+A A:page 2>page 1"},
        {"no identifier", {{anonymous}}, {{app("B")}, {anonymous}}, "+B NoID:page 1>page 2"},
    };

    for (const auto& [what, before, after, told] : pages)
        EXPECT_EQ(inShort(differences({{before}, {}}, {{after}, {}})), told) << what;

    const struct {
        const char* what;
        Tiles before;
        Tiles after;
        const char* told;
    } docks[] = {
        {"another order",
         {{"A", "x"}, {"B", "y"}, {"C", "z"}},
         {{"C", "z"}, {"N", "n"}, {"A", "x"}},
         "<B >N order"},
        {"a tile in between moves none", {{"A", "x"}, {"C", "z"}}, {{"A", "x"}, {"", "n"}, {"C", "z"}}, ">n"},
        {"a label for want of an identifier",
         {{"Stack", ""}, {"A", "x"}, {"A", "x"}},
         {{"Stack", ""}, {"Styled A", "x"}},
         "<A"},
        {"equal", {{"A", "x"}}, {{"A", "x"}}, ""},
    };

    for (const auto& [what, before, after, told] : docks)
        EXPECT_EQ(inShort(differences({{}, before}, {{}, after})), told) << what;
}

} // namespace tavrik
