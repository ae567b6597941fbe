#include "icons/list/ListFilter.h"

#include "icons/list/RowOrder.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace tavrik::test {
namespace {

TEST(ListFilter, ShowsTheRowsThatMeetEveryCondition) {
    ApplicationRow plain;
    plain.foldedName = "plain";
    plain.foldedBundleID = "org.example.id";
    ApplicationRow themed = plain;
    themed.app.selectedIconIndex = 0;
    themed.isInDock = true;
    themed.isSquircle = false;
    ApplicationRow refused = plain;
    refused.refusal = "It cannot be restyled.";
    refused.isSquircle = true;

    const auto shown = [&](const ListFilter& filter, const char* text) {
        const RowFilter ready(filter, text);
        std::string found;
        for (const ApplicationRow* row : {&plain, &themed, &refused})
            found += ready.shows(*row) ? (row == &plain ? 'p' : row == &themed ? 't' : 'r') : '-';
        return found;
    };
    using enum FilterOption;
    EXPECT_EQ(shown({allItems, false, false, false, {}}, ""), "pt-");
    EXPECT_EQ(shown({allItems, false, false, true, {}}, ""), "ptr");
    EXPECT_EQ(shown({themedItems, false, false, true, {}}, ""), "-t-");
    EXPECT_EQ(shown({unthemedItems, false, false, true, {}}, ""), "p-r");
    EXPECT_EQ(shown({allItems, true, false, true, {}}, ""), "-t-");
    EXPECT_EQ(shown({allItems, false, true, true, {}}, ""), "-t-") << "unknown shapes pass for standard ones";
    EXPECT_EQ(shown({unthemedItems, false, false, false, {}}, "ple.i"), "p--");
    EXPECT_EQ(shown({allItems, false, false, true, {}}, "x y"), "---");
}

TEST(RowOrder, IsTheLanguagesAndKeepsRowsOfOneNameByTheirIdentifiers) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    std::vector<ApplicationRow> rows(5);
    const char* const names[] = {"Zebra", "öl", "Atlas", "Atlas", "Ofen"};
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row].plainName = names[row];
        rows[row].app.bundleID = "edcba"[row];
    }
    for (const auto& [order, expected] :
         {std::pair{SortOrder::ascending, "bcade"}, {SortOrder::descending, "edabc"}}) {
        sortRows(rows, order);
        std::string letters;
        for (const ApplicationRow& row : rows)
            letters += row.app.bundleID;
        EXPECT_EQ(letters, expected);
    }
    QLocale::setDefault(before);
}

} // namespace
} // namespace tavrik::test
