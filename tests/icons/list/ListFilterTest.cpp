#include "icons/list/ListFilter.h"

#include "icons/list/FilterSettingsManager.h"
#include "icons/list/RowOrder.h"
#include "platform/NotificationCenter.h"

#include <QLocale>

#include <gmock/gmock.h>

namespace tavrik::test {
namespace {

using testing::ElementsAre;

ApplicationRow rowNamed(const std::string& name, const std::string& identifier) {
    ApplicationRow row;
    row.plainName = name;
    row.app.bundleID = identifier;
    return row;
}

TEST(ListFilter, ShowsTheRowsThatMeetEveryCondition) {
    ApplicationRow plain = rowNamed("Plain", "org.example.plain");
    plain.foldedName = "plain";
    plain.foldedBundleID = "org.example.plain";
    ApplicationRow themed = plain;
    themed.app.selectedIconIndex = 0;
    themed.isInDock = true;
    themed.isSquircle = false;
    ApplicationRow refused = plain;
    refused.refusal = "It cannot be restyled.";
    refused.isSquircle = true;
    const std::vector<ApplicationRow> rows{plain, themed, refused};

    const auto shown = [&](const ListFilter& filter, const std::string& text = "") {
        std::string letters;
        for (std::size_t row = 0; row < rows.size(); ++row)
            letters += RowFilter(filter, text).shows(rows[row]) ? "ptr"[row] : '-';
        return letters;
    };
    const auto with = [](auto change) {
        ListFilter filter{.showUnsupportedApps = true, .searchText = ""};
        change(filter);
        return filter;
    };
    EXPECT_EQ(shown({.searchText = ""}), "pt-");
    EXPECT_EQ(shown(with([](ListFilter&) {})), "ptr");
    EXPECT_EQ(shown(with([](ListFilter& f) { f.filterOption = FilterOption::themedItems; })), "-t-");
    EXPECT_EQ(shown(with([](ListFilter& f) { f.filterOption = FilterOption::unthemedItems; })), "p-r");
    EXPECT_EQ(shown(with([](ListFilter& f) { f.showOnlyDockItems = true; })), "-t-");
    EXPECT_EQ(shown(with([](ListFilter& f) { f.showOnlyNonSquircle = true; })), "-t-")
        << "a shape that is not known passes for the standard one";
    EXPECT_EQ(shown(with([](ListFilter&) {}), "lai"), "ptr");
    EXPECT_EQ(shown(with([](ListFilter&) {}), "example.pl"), "ptr");
    EXPECT_EQ(shown(with([](ListFilter&) {}), "other"), "---");
}

TEST(RowOrder, IsTheLanguagesAndKeepsRowsOfOneNameByTheirIdentifiers) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    std::vector<ApplicationRow> rows{rowNamed("Zebra", "e"), rowNamed("öl", "d"), rowNamed("Atlas", "c"),
                                     rowNamed("Atlas", "b"), rowNamed("Ofen", "a")};
    const auto identifiers = [&] {
        std::string letters;
        for (const ApplicationRow& row : rows)
            letters += row.app.bundleID;
        return letters;
    };
    sortRows(rows, SortOrder::ascending);
    EXPECT_EQ(identifiers(), "bcade");
    sortRows(rows, SortOrder::descending);
    EXPECT_EQ(identifiers(), "edabc");
    QLocale::setDefault(before);
}

TEST(FilterSettings, CountRunsThatOverlapTogether) {
    NotificationCenter notifications;
    FilterSettingsManager filters(notifications);
    int posts = 0;
    const auto observation = notifications.observe(std::string(kFilterSettingsUpdated), [&] { ++posts; });

    const int first = filters.beginIconAnalysis(300);
    filters.advanceIconAnalysis(first, 0.5);
    EXPECT_DOUBLE_EQ(filters.analysisProgress(), 0.5);
    const int second = filters.beginIconAnalysis(100);
    filters.endIconAnalysis(first);
    EXPECT_DOUBLE_EQ(filters.analysisProgress(), 0.75);
    EXPECT_TRUE(filters.isIconAnalysisInProgress());
    filters.advanceIconAnalysis(second, 0.5);
    EXPECT_DOUBLE_EQ(filters.analysisProgress(), 0.875);
    filters.endIconAnalysis(second);
    EXPECT_FALSE(filters.isIconAnalysisInProgress());

    filters.beginIconAnalysis(10);
    EXPECT_DOUBLE_EQ(filters.analysisProgress(), 0);
    EXPECT_EQ(posts, 7);

    filters.setSearchText("atlas");
    filters.setSearchText("atlas");
    EXPECT_EQ(posts, 8) << "what does not change is not told";
}

} // namespace
} // namespace tavrik::test
