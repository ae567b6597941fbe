#include "BackupStage.h"
#include "platform/PropertyList.h"
#include "practice/furnish/SampleApps.h"

#include <array>
#include <sstream>

namespace tavrik::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using Application = LaunchpadLayout::Application;
using Folder = LaunchpadLayout::Folder;
using Tiles = std::vector<LayoutSummary::Tile>;

/// "A B/id [Folder C ] | D": applications, with an identifier of their own or "x.<title>", and two pages.
LaunchpadLayout pagesOf(const std::string& text) {
    LaunchpadLayout layout{{{}}};
    Folder* folder = nullptr;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const auto slash = word.find('/');
        const std::string title = word.substr(0, slash);
        const Application app{RowID{1}, title, slash == word.npos ? "x." + title : word.substr(slash + 1)};
        auto& page = layout.pages.back();
        if (word == "|")
            layout.pages.emplace_back();
        else if (word == "]")
            folder = nullptr;
        else if (word.starts_with('['))
            folder = &std::get<Folder>(page.emplace_back(Folder{RowID{2}, word.substr(1), {{}}}));
        else if (folder)
            folder->pages.back().push_back(app);
        else
            page.emplace_back(app);
    }
    return layout;
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

using Summary = BackupStage;

TEST_F(Summary, TellsThePagesAndTheTilesOfAPair) {
    BackupContents contents = live();
    const auto summary = summaryOf(contents);
    ASSERT_TRUE(summary) << summary.error().description;
    EXPECT_EQ(std::get<Application>(summary->launchpad.pages.at(0).at(1)).title, "Mail");
    const auto pinned = practice::sampleDockApps();
    ASSERT_EQ(summary->dock.size(), pinned.size() + 1) << "no spacer, but the folder of downloads";
    for (std::size_t i = 0; i < pinned.size(); ++i)
        EXPECT_EQ(summary->dock[i].bundleID, pinned[i]);

    // As scripts and old files have them.
    contents.dockPlist = preferences({tile({{"file-label", " "}}), tile({{"file-label", "Named"}}), "no tile",
                                      tile({{"bundle-identifier", "x.y"}, {"file-label", 7}}),
                                      plist::Dictionary{{"tile-data", plist::Array{}}}, tile({})},
                                     {tile({{"file-label", "Stack"}})});
    EXPECT_EQ(summaryOf(contents)->dock, (Tiles{{"Named", ""}, {"", "x.y"}, {"Stack", ""}}));
    contents.dockPlist = *plist::serialize(plist::Dictionary{{"persistent-apps", 3}}, plist::Format::xml);
    EXPECT_THAT(summaryOf(contents)->dock, IsEmpty());

    const Bytes text(600, '?');
    EXPECT_THAT(summaryOf({text, contents.launchpadDatabase}).error().description,
                HasSubstr("Dock's preferences"));
    for (const Bytes& database : {text, Bytes()})
        EXPECT_THAT(summaryOf({contents.dockPlist, database}).error().description,
                    HasSubstr("Launchpad database"));
}

TEST(Differences, AreWhatAPersonWouldSeeOfThem) {
    for (const auto& [what, before, after, told] : std::vector<std::array<const char*, 4>>{
             {"order within a page is not looked at", "A B", "B A", ""},
             {"a title is not an application", "A", "𝐀/x.A", ""},
             {"gone and new, by name", "b C a | /x.id", "N", "-a -b -C -x.id +N"},
             {"to another page", "A B", "B | A", "A:page 1>page 2"},
             {"into a folder and out of one", "A [Work B ]", "B [Work A ]",
              "A:page 1>folder Work B:folder Work>page 1"},
             {"a folder that moves as a whole", "[Work A ] | B", "B | [Work A ]", "B:page 2>page 1"},
             {"a folder's new name", "[Work A ]", "[Play A ]", "A:folder Work>folder Play"},
             {"one of two rows of an application", "A B | A", "B | A", "-A"},
             {"one of two rows moved, and a third", "A | A B", "A A [F A ] | B", "+A A:page 2>page 1"},
             {"no identifier", "NoID/", "B | NoID/", "+B NoID:page 1>page 2"},
         })
        EXPECT_EQ(inShort(tavrik::differences({pagesOf(before), {}}, {pagesOf(after), {}})), told) << what;

    const Tiles abc{{"A", "x"}, {"B", "y"}, {"C", "z"}}, twice{{"S", ""}, {"A", "x"}, {"A", "x"}};
    for (const auto& [before, after, told] : std::vector<std::tuple<Tiles, Tiles, const char*>>{
             {abc, abc, ""},
             {abc, {{"C", "z"}, {"N", "n"}, {"A", "x"}}, "<B >N order"},
             {abc, {{"A", "x"}, {"", "n"}, {"Styled B", "y"}, {"C", "z"}}, ">n"},
             {twice, {{"S", ""}, {"A", "x"}}, "<A"}})
        EXPECT_EQ(inShort(tavrik::differences({{}, before}, {{}, after})), told);
}

} // namespace
} // namespace tavrik::test
