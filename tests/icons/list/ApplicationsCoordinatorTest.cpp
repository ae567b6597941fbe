#include "ListStage.h"
#include "fonts/FontReplacer.h"

namespace tavrik::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

class ApplicationsCoordinatorTest : public ListStage {};

TEST_F(ApplicationsCoordinatorTest, ReadsTheCatalogueIntoTwoLists) {
    EXPECT_TRUE(row().isInDock && !row(kInkwell).isInDock);
    EXPECT_TRUE(!list().find(kMail) && lists->systemApps.find(kMail));
    EXPECT_EQ(list().applications().size() + lists->systemApps.applications().size(),
              program.apps.loadApplications().size());
    EXPECT_THAT(log.lines(), IsSupersetOf({"📋 Loaded state for Atlas", "   - Permanent: 0",
                                           "   - Display count: 0", "No table view to reload for userApps"}));
    const auto rows = list().applications();
    log.clear();
    refresh();
    list().load({});
    EXPECT_EQ(list().applications(), rows) << "ids last, and a database that cannot be read empties no list";
    EXPECT_FALSE(log.mentions("📋 Loaded state for"));

    SharedCoordinators unread(program);
    unread.filters.setShowOnlyDockItems(true);
    EXPECT_TRUE(log.has("Skipping filter application - no data loaded yet for systemApps"));
    EXPECT_THAT(unread.userApps.filteredApplications(), IsEmpty());
}

TEST_F(ApplicationsCoordinatorTest, FindsWhatIsTypedHoweverItIsWritten) {
    const auto all = list().filteredApplications().size();
    const std::string bold = program.fonts.fontReplacer().convert("Atlas", "Mathematical Bold");
    const std::pair<std::string, std::string> cases[] = {
        {"aTLaS", kAtlas},         {bold, kAtlas},
        {"  inkw ", kInkwell},     {"eclair", "com.example.eclair"},
        {"example.ink", kInkwell}, {"星", "net.example.seizu"},
        {"nowhere", ""},
    };
    for (const auto& [text, found] : cases) {
        lists->filters.setSearchText(text);
        EXPECT_EQ(identifiers(list().filteredApplications()), found) << text;
    }
    log.clear();
    lists->filters.setSearchText(" \t ");
    EXPECT_EQ(list().filteredApplications().size(), all);
    EXPECT_THAT(log.lines(), ElementsAre("Applying filters for userApps - filter option: All Items",
                                         "No table view to reload for userApps",
                                         "Applying filters for systemApps - filter option: All Items",
                                         "No table view to reload for systemApps"));
}

TEST_F(ApplicationsCoordinatorTest, ShowsItsTableWhatTheFiltersLeaveInEitherOrder) {
    ApplicationsModel model;
    list().setTable(&model);
    EXPECT_LT(model.rowOf("net.example.apricot"), model.rowOf(kAtlas));
    EXPECT_LT(model.rowOf("com.example.eclair"), model.rowOf("org.example.ferrule"));
    EXPECT_EQ(model.rowOf(kXcode), -1);
    list().setSortOrder(SortOrder::descending);
    EXPECT_GT(model.rowOf("net.example.apricot"), model.rowOf(kAtlas));

    lists->filters.setFilterOption(FilterOption::themedItems);
    EXPECT_EQ(model.rowCount(), 0);
    ASSERT_TRUE(add(1));
    EXPECT_EQ(identifiers(model.rows()), kAtlas) << "an icon that was just added is chosen";
    list().setTable(nullptr);
}

TEST_F(ApplicationsCoordinatorTest, StagesWhatIsDoneToARowAndShowsItAtOnce) {
    int posts = 0;
    const auto observation =
        program.notificationCenter.observe(std::string(kApplicationDataUpdated), [&] { ++posts; });
    ASSERT_TRUE(add(1) && add(2) && add(3));
    const auto icons = row().displayPaths();
    EXPECT_EQ(row().app.selectedIconIndex, 2);
    EXPECT_TRUE(list().selectIcon(kAtlas, 1));
    EXPECT_THAT(log.lines(), IsSupersetOf({"📍 Selected icon at index 1 for Atlas", "   Display paths count: 3",
                                           "   Theme icons count: 0"}));
    EXPECT_TRUE(list().deleteIcon(kAtlas, 0));
    EXPECT_THAT(log.lines(),
                IsSupersetOf({"🗑️ Deleting at display index 0", "   Visible permanent: 0",
                              "   Current hidden indices: []", "   Deleting pending icon at index 0",
                              "   Final state - Hidden: [], Pending: 2 items"}));
    EXPECT_THAT(row().displayPaths(), ElementsAre(icons[1], icons[2]));
    EXPECT_EQ(row().app.selectedIconIndex, 0) << "the choice stays with its icon";
    EXPECT_EQ(posts, 5);

    log.clear();
    for (const int index : {-1, 2})
        EXPECT_FALSE(list().deleteIcon(kAtlas, index) || list().selectIcon(kAtlas, index == 2 ? 2 : -2));
    EXPECT_THAT(log.lines(), ElementsAre("🗑️ Deleting at display index -1", "❌ Index out of bounds: -1",
                                         "⚠️ Invalid icon index -2", "🗑️ Deleting at display index 2",
                                         "❌ Index out of bounds: 2", "⚠️ Invalid icon index 2"));
    EXPECT_EQ(posts, 5);
    EXPECT_TRUE(list().selectIcon(kAtlas, -1));
    EXPECT_FALSE(row().isThemed());
    pending().clearAllPendingChanges();
    EXPECT_THAT(row().displayPaths(), IsEmpty());
}

TEST_F(ApplicationsCoordinatorTest, HidesPermanentIconsAndDeletesPendingOnes) {
    ASSERT_TRUE(add(1) && add(2) && add(3));
    ASSERT_EQ(program.apply.applyChanges().end, ApplyResult::End::applied);
    ASSERT_TRUE(add(4) && list().deleteIcon(kAtlas, 1));
    const auto permanent = row().app.permanentIconPaths;
    const auto added = row().app.pendingAdditionPaths;
    ASSERT_TRUE(permanent.size() == 3 && added.size() == 1);
    log.clear();
    EXPECT_TRUE(list().deleteIcon(kAtlas, 1));
    EXPECT_THAT(log.lines(), IsSupersetOf({"   Visible permanent: 2", "   Current hidden indices: [1]",
                                           "   Hiding permanent icon at actual index 2",
                                           "   Final state - Hidden: [1, 2], Pending: 1 items"}));
    EXPECT_THAT(row().displayPaths(), ElementsAre(permanent[0], added[0]));
    EXPECT_TRUE(list().deleteIcon(kAtlas, 1));
    EXPECT_FALSE(files.exists(added[0]));
    EXPECT_TRUE(std::ranges::all_of(permanent, [this](const MacPath& icon) { return files.exists(icon); }));
}

TEST_F(ApplicationsCoordinatorTest, DeletesTheIconThatIsShownThoughOneBeforeItIsGone) {
    ASSERT_TRUE(add(1) && add(2) && add(3));
    const auto icons = row().displayPaths();
    ASSERT_TRUE(files.remove(icons[0]));
    EXPECT_FALSE(list().deleteIcon(kAtlas, 0)) << "it is not there any more";
    EXPECT_THAT(row().displayPaths(), ElementsAre(icons[1], icons[2]));
    EXPECT_EQ(row().app.selectedIconIndex, 1);
    EXPECT_TRUE(list().selectIcon(kAtlas, 0) && list().deleteIcon(kAtlas, 1));
    EXPECT_THAT(row().displayPaths(), ElementsAre(icons[1]));
    EXPECT_EQ(row().app.selectedIconIndex, 0);
}

TEST_F(ApplicationsCoordinatorTest, RefusesWhatCannotBeDone) {
    std::optional<Status> outcome;
    const auto note = [&](const Status& status) { outcome = status; };
    const std::pair<const char*, std::function<Status(const std::string&)>> actions[] = {
        {"Cannot add icons to ", [&](const auto& id) { return list().addIcon(id, picture(1), note); }},
        {"Cannot add icons to ", [&](const auto& id) { return list().addIcon(id, Bytes{1}, "a.png", note); }},
        {"Cannot select icons for ", [&](const auto& id) { return list().selectIcon(id, -1); }},
        {"Cannot hide theme icons for ",
         [&](const auto& id) { return list().hideThemeIcon(id, "t", id + ".png"); }},
    };
    for (const auto& [words, act] : actions) {
        log.clear();
        for (const std::string& bundleID : {kPocketTides, kXcode})
            EXPECT_EQ(act(bundleID).error().description, row(bundleID).refusal);
        EXPECT_THAT(log.lines(), ElementsAre(std::string(words) + "iOS app: Pocket Tides",
                                             std::string(words) + "unsupported app: Xcode"));
        EXPECT_FALSE(act("org.example.nobody"));
    }
    ASSERT_TRUE(list().addIcon(kAtlas, Bytes{1}, "broken.png", note));
    ASSERT_TRUE(runUntil([&] { return outcome.has_value(); }));
    EXPECT_FALSE(*outcome);
    EXPECT_FALSE(pending().hasPendingChanges());
}

TEST_F(ApplicationsCoordinatorTest, ReadsAnewWhenANotificationAsksForIt) {
    const std::string restored = "ReloadApplicationsAfterBackupRestore";
    for (const std::string& name :
         {std::string("ReloadApplicationsAfterApply"), std::string("UpdateApplicationStateAfterApply"),
          std::string("ReloadApplicationsAfterDiscard"), restored}) {
        program.settings.setSelectedIcon(kAtlas, 7);
        log.clear();
        waitForReadingAfter([&] { program.notificationCenter.post(name); });
        EXPECT_EQ(log.count("⚠️ Warning: Selected index 7 out of bounds for Atlas, resetting to -1"), 1U)
            << name;
        EXPECT_EQ(log.has("📋 Reloading applications after backup restore"), name == restored);
        program.settings.setSelectedIcon(kAtlas, std::nullopt);
        refresh();
    }
}

TEST_F(ApplicationsCoordinatorTest, ShowsOtherOutlinesOnceTheShapesAreKnown) {
    lists->filters.setShowOnlyNonSquircle(true);
    EXPECT_TRUE(list().isAnalyzingIcons() && lists->systemApps.isAnalyzingIcons());
    EXPECT_THAT(list().filteredApplications(), IsEmpty());
    ASSERT_TRUE(runUntil([&] { return !lists->filters.isIconAnalysisInProgress(); }));
    EXPECT_FALSE(list().isAnalyzingIcons() || lists->systemApps.isAnalyzingIcons());
    EXPECT_DOUBLE_EQ(lists->filters.analysisProgress(), 1);
    EXPECT_THAT(identifiers(list().filteredApplications()),
                AllOf(HasSubstr("net.example.tessera"), Not(HasSubstr(kAtlas))));
    lists->filters.setShowOnlyNonSquircle(false);
    lists->filters.setShowOnlyNonSquircle(true);
    EXPECT_FALSE(lists->filters.isIconAnalysisInProgress()) << "all is known";
}

TEST_F(ApplicationsCoordinatorTest, LoadsIconsAndEndsInTheMiddleOfIt) {
    QObject context;
    std::vector<int> widths;
    const auto load = [&](const std::string& bundleID) {
        list().loadIcon(bundleID, 16, &context, [&](const QImage& icon) { widths.push_back(icon.width()); });
    };
    load("org.example.nobody");
    load(kAtlas);
    ASSERT_TRUE(runUntil([&] { return widths.size() == 2; }));
    EXPECT_TRUE(widths[0] == 0 && widths[1] >= 16);
    lists->filters.setShowOnlyNonSquircle(true);
    for (int time = 0; time < 300; ++time)
        load(kAtlas);
    ASSERT_TRUE(list().addIcon(kAtlas, picture(1), [&](const Status&) { ADD_FAILURE(); }));
    lists->refresh();
    lists.reset();
    QCoreApplication::processEvents();
    EXPECT_LT(widths.size(), 300U) << "what nobody waits for is not decoded";
}

} // namespace
} // namespace tavrik::test
