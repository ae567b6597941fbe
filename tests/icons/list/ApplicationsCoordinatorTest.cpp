#include "ListStage.h"
#include "fonts/FontReplacer.h"

#include <set>

namespace tavrik::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

class ApplicationsCoordinatorTest : public ListStage {};

TEST_F(ApplicationsCoordinatorTest, ReadsTheCatalogueIntoTwoLists) {
    EXPECT_TRUE(row().isInDock);
    EXPECT_FALSE(row(kInkwell).isInDock);
    EXPECT_FALSE(row(kXcode).refusal.empty());
    EXPECT_EQ(list().find(kMail), nullptr);
    ASSERT_NE(lists->systemApps.find(kMail), nullptr);
    const auto user = identifiers(list().applications());
    const auto system = identifiers(lists->systemApps.applications());
    std::set<std::string> all(user.begin(), user.end());
    all.insert(system.begin(), system.end());
    EXPECT_EQ(all.size(), program.apps.loadApplications().size());
    EXPECT_EQ(all.size(), user.size() + system.size());
    EXPECT_THAT(log.lines(),
                IsSupersetOf({"📋 Loaded state for Atlas", "   - Permanent: 0", "   - Display count: 0",
                              "Applying filters for userApps - filter option: All Items",
                              "No table view to reload for userApps"}));

    const std::string id = row().app.id;
    log.clear();
    refresh();
    EXPECT_EQ(row().app.id, id);
    EXPECT_FALSE(log.mentions("📋 Loaded state for"));

    const auto filled = list().applications().size();
    list().load({});
    EXPECT_EQ(list().applications().size(), filled) << "a database that cannot be read empties no list";
}

TEST_F(ApplicationsCoordinatorTest, FiltersNothingBeforeTheFirstReading) {
    SharedCoordinators fresh(program);
    log.clear();
    fresh.filters.setShowOnlyDockItems(true);
    EXPECT_THAT(log.lines(), Contains("Skipping filter application - no data loaded yet for systemApps"));
    EXPECT_THAT(fresh.userApps.filteredApplications(), IsEmpty());
}

TEST_F(ApplicationsCoordinatorTest, FindsWhatIsTypedHoweverItIsWritten) {
    const std::string bold = program.fonts.fontReplacer().convert("Atlas", "Mathematical Bold");

    const struct {
        std::string text;
        std::vector<std::string> found;
    } cases[] = {
        {"aTLaS", {kAtlas}},
        {bold, {kAtlas}},
        {"  inkw ", {kInkwell}},
        {"eclair", {"com.example.eclair"}},
        {"org.example.ink", {kInkwell}},
        {"星", {"net.example.seizu"}},
        {"nowhere", {}},
    };

    const auto all = list().filteredApplications().size();
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

TEST_F(ApplicationsCoordinatorTest, SortsBothWaysAndShowsWhatTheFiltersLeave) {
    ApplicationsModel model;
    list().setTable(&model);
    const auto ascending = identifiers(model.rows());
    EXPECT_LT(model.rowOf("net.example.apricot"), model.rowOf(kAtlas));
    EXPECT_LT(model.rowOf("com.example.eclair"), model.rowOf("org.example.ferrule"));
    EXPECT_EQ(model.rowOf(kXcode), -1);

    list().setSortOrder(SortOrder::descending);
    EXPECT_EQ(identifiers(model.rows()), std::vector(ascending.rbegin(), ascending.rend()));

    lists->filters.setFilterOption(FilterOption::themedItems);
    EXPECT_EQ(model.rowCount(), 0);
    ASSERT_TRUE(add(1));
    EXPECT_THAT(identifiers(model.rows()), ElementsAre(kAtlas)) << "an icon that was just added is chosen";
    list().setTable(nullptr);
}

TEST_F(ApplicationsCoordinatorTest, StagesWhatIsDoneToARowAndShowsItAtOnce) {
    int posts = 0;
    const auto observation =
        program.notificationCenter.observe(std::string(kApplicationDataUpdated), [&] { ++posts; });
    ASSERT_TRUE(add(1) && add(2) && add(3));
    EXPECT_EQ(row().app.pendingAdditionPaths.size(), 3U);
    EXPECT_EQ(row().app.selectedIconIndex, 2);
    EXPECT_EQ(posts, 3);

    log.clear();
    EXPECT_TRUE(list().selectIcon(kAtlas, 1));
    EXPECT_THAT(log.lines(), IsSupersetOf({"📍 Selected icon at index 1 for Atlas", "   Display paths count: 3",
                                           "   Theme icons count: 0"}));
    EXPECT_EQ(row().app.selectedIconIndex, 1);
    EXPECT_EQ(posts, 4);

    log.clear();
    const MacPath first = row().displayPaths()[0];
    EXPECT_TRUE(list().deleteIcon(kAtlas, 0));
    EXPECT_THAT(log.lines(),
                IsSupersetOf({"🗑️ Deleting at display index 0", "   Visible permanent: 0",
                              "   Current hidden indices: []", "   Deleting pending icon at index 0",
                              "   Final state - Hidden: [], Pending: 2 items"}));
    EXPECT_FALSE(files.exists(first));
    EXPECT_EQ(row().app.selectedIconIndex, 0) << "the choice stays with its icon";
    EXPECT_EQ(posts, 5);

    log.clear();
    for (const int index : {-1, 2})
        EXPECT_FALSE(list().deleteIcon(kAtlas, index));
    for (const int index : {-2, 2})
        EXPECT_FALSE(list().selectIcon(kAtlas, index));
    EXPECT_THAT(log.lines(), ElementsAre("🗑️ Deleting at display index -1", "❌ Index out of bounds: -1",
                                         "🗑️ Deleting at display index 2", "❌ Index out of bounds: 2",
                                         "⚠️ Invalid icon index -2", "⚠️ Invalid icon index 2"));
    EXPECT_EQ(posts, 5);

    EXPECT_TRUE(list().selectIcon(kAtlas, -1));
    EXPECT_FALSE(row().isThemed());
    pending().clearAllPendingChanges();
    EXPECT_THAT(row().displayPaths(), IsEmpty());
}

TEST_F(ApplicationsCoordinatorTest, HidesPermanentIconsAndDeletesPendingOnes) {
    ASSERT_TRUE(add(1) && add(2) && add(3));
    ASSERT_EQ(program.apply.applyChanges().end, ApplyResult::End::applied);
    QCoreApplication::processEvents();
    ASSERT_TRUE(add(4));
    ASSERT_TRUE(list().deleteIcon(kAtlas, 1));
    const auto permanent = row().app.permanentIconPaths;
    const auto added = row().app.pendingAdditionPaths;
    ASSERT_EQ(permanent.size(), 3U);
    ASSERT_EQ(added.size(), 1U);

    log.clear();
    EXPECT_TRUE(list().deleteIcon(kAtlas, 1));
    EXPECT_THAT(log.lines(), IsSupersetOf({"   Visible permanent: 2", "   Current hidden indices: [1]",
                                           "   Hiding permanent icon at actual index 2",
                                           "   Final state - Hidden: [1, 2], Pending: 1 items"}));
    EXPECT_THAT(row().displayPaths(), ElementsAre(permanent[0], added[0]));
    EXPECT_TRUE(list().deleteIcon(kAtlas, 1));
    EXPECT_FALSE(files.exists(added[0]));
    for (const MacPath& icon : permanent)
        EXPECT_TRUE(files.exists(icon)) << "nothing applied is deleted before an apply";
}

TEST_F(ApplicationsCoordinatorTest, DeletesTheIconThatIsShownThoughOneBeforeItIsGone) {
    ASSERT_TRUE(add(1) && add(2) && add(3));
    const auto icons = row().displayPaths();
    ASSERT_TRUE(files.remove(icons[0]));
    EXPECT_FALSE(list().deleteIcon(kAtlas, 0)) << "it is not there any more";
    EXPECT_THAT(row().displayPaths(), ElementsAre(icons[1], icons[2]));
    EXPECT_TRUE(log.has("⚠️ Warning: Pending icon missing at " + icons[0].string()));
    EXPECT_EQ(row().app.selectedIconIndex, 1);
    EXPECT_TRUE(list().selectIcon(kAtlas, 0));
    EXPECT_TRUE(list().deleteIcon(kAtlas, 1));
    EXPECT_THAT(row().displayPaths(), ElementsAre(icons[1]));
    EXPECT_EQ(row().app.selectedIconIndex, 0);
}

TEST_F(ApplicationsCoordinatorTest, RefusesWhatCannotBeRestyled) {
    const auto ignored = [](const Status&) {};

    const struct {
        const char* verb;
        std::function<Status(const std::string&)> act;
    } actions[] = {
        {"Cannot add icons to ", [&](const auto& id) { return list().addIcon(id, picture(1), ignored); }},
        {"Cannot add icons to ", [&](const auto& id) { return list().addIcon(id, Bytes(), "a.png", ignored); }},
        {"Cannot select icons for ", [&](const auto& id) { return list().selectIcon(id, -1); }},
        {"Cannot hide theme icons for ",
         [&](const auto& id) { return list().hideThemeIcon(id, "t", id + ".png"); }},
    };

    for (const auto& [verb, act] : actions) {
        log.clear();
        const Status ios = act(kPocketTides);
        const Status listed = act(kXcode);
        ASSERT_FALSE(ios || listed) << verb;
        EXPECT_THAT(log.lines(), ElementsAre(std::string(verb) + "iOS app: Pocket Tides",
                                             std::string(verb) + "unsupported app: Xcode"));
        EXPECT_EQ(ios.error().description, row(kPocketTides).refusal);
        EXPECT_EQ(listed.error().description, row(kXcode).refusal);
        EXPECT_FALSE(act("org.example.nobody"));
    }
    EXPECT_FALSE(pending().hasPendingChanges());
}

TEST_F(ApplicationsCoordinatorTest, SaysWhyAPictureWasNotAdded) {
    std::optional<Status> outcome;
    ASSERT_TRUE(
        list().addIcon(kAtlas, Bytes{1, 2, 3}, "broken.png", [&](const Status& status) { outcome = status; }));
    ASSERT_TRUE(runUntil([&] { return outcome.has_value(); }));
    ASSERT_FALSE(*outcome);
    EXPECT_THAT(outcome->error().description, Not(IsEmpty()));
    EXPECT_FALSE(pending().hasPendingChanges());
}

TEST_F(ApplicationsCoordinatorTest, ReadsAnewWhenANotificationAsksForIt) {
    for (const char* name : {"ReloadApplicationsAfterApply", "UpdateApplicationStateAfterApply",
                             "ReloadApplicationsAfterDiscard", "ReloadApplicationsAfterBackupRestore"}) {
        program.settings.setSelectedIcon(kAtlas, 7);
        log.clear();
        waitForReadingAfter([&] { program.notificationCenter.post(name); });
        EXPECT_EQ(log.count("⚠️ Warning: Selected index 7 out of bounds for Atlas, resetting to -1"), 1U)
            << name;
        EXPECT_EQ(row().app.selectedIconIndex, -1);
        EXPECT_EQ(log.has("📋 Reloading applications after backup restore"),
                  std::string(name).ends_with("BackupRestore"));
        program.settings.setSelectedIcon(kAtlas, std::nullopt);
        refresh();
    }
}

TEST_F(ApplicationsCoordinatorTest, ShowsOtherOutlinesOnceTheShapesAreKnown) {
    double most = 0;
    const auto observation = program.notificationCenter.observe(
        std::string(kFilterSettingsUpdated), [&] { most = std::max(most, lists->filters.analysisProgress()); });
    lists->filters.setShowOnlyNonSquircle(true);
    EXPECT_TRUE(list().isAnalyzingIcons());
    EXPECT_TRUE(lists->systemApps.isAnalyzingIcons());
    EXPECT_TRUE(lists->filters.isIconAnalysisInProgress());
    EXPECT_THAT(list().filteredApplications(), IsEmpty());
    ASSERT_TRUE(runUntil([&] { return !lists->filters.isIconAnalysisInProgress(); }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(list().isAnalyzingIcons() || lists->systemApps.isAnalyzingIcons());
    EXPECT_DOUBLE_EQ(most, 1);
    EXPECT_THAT(identifiers(list().filteredApplications()),
                AllOf(Contains("net.example.tessera"), Not(Contains(kAtlas))));

    lists->filters.setShowOnlyNonSquircle(false);
    lists->filters.setShowOnlyNonSquircle(true);
    EXPECT_FALSE(lists->filters.isIconAnalysisInProgress()) << "all is known";
}

TEST_F(ApplicationsCoordinatorTest, EndsInTheMiddleOfWhatIsUnderWay) {
    QObject context;
    int loaded = 0;
    lists->filters.setShowOnlyNonSquircle(true);
    for (const ApplicationRow& each : list().applications())
        list().loadIcon(each.app.bundleID, 1024, &context, [&](const QImage&) { ++loaded; });
    ASSERT_TRUE(list().addIcon(kAtlas, picture(1), [&](const Status&) { ++loaded; }));
    const std::size_t all = list().applications().size();
    lists->refresh();
    lists.reset();
    QCoreApplication::processEvents();
    EXPECT_LT(static_cast<std::size_t>(loaded), all) << "icons that nobody waits for are not decoded";
}

TEST_F(ApplicationsCoordinatorTest, LoadsAnIconOffTheMainThread) {
    QObject context;
    std::vector<QSize> sizes;
    for (const std::string& bundleID : {kAtlas, std::string("org.example.nobody")})
        list().loadIcon(bundleID, 16, &context, [&](const QImage& icon) { sizes.push_back(icon.size()); });
    ASSERT_TRUE(runUntil([&] { return sizes.size() == 2; }));
    EXPECT_GE(sizes[0].width(), 16);
    EXPECT_TRUE(sizes[1].isEmpty());
}

} // namespace
} // namespace tavrik::test
