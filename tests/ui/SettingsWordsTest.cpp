#include "ui/models/Amounts.h"
#include "ui/models/DifferenceWords.h"
#include "ui/models/LayoutDrawing.h"

#include <QDateTime>
#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik {

using App = LaunchpadLayout::Application;

TEST(SettingsWords, TellSizesAsFinderDoes) {
    QLocale::setDefault(QLocale::c());
    for (const auto& [bytes, text] : {std::pair<std::uint64_t, const char*>{0, "0 KB"},
                                      {1, "1 KB"},
                                      {116'001, "117 KB"},
                                      {998'999, "999 KB"},
                                      {999'999, "1.0 MB"},
                                      {12'340'000, "12.3 MB"},
                                      {4'560'000'000, "4.6 GB"}})
        EXPECT_EQ(sizeText(bytes).toStdString(), text) << bytes;
}

TEST(SettingsWords, TellMomentsByTheDayAndNotByTheHours) {
    QLocale::setDefault(QLocale::c());
    const auto at = [](int day, int hour) {
        return dateFromUnix(
            static_cast<double>(QDateTime(QDate(2026, 3, day), QTime(hour, 5)).toSecsSinceEpoch()));
    };
    const Date now = at(14, 1);
    EXPECT_EQ(momentText(at(14, 0), now).toStdString(), "Today at 00:05:00");
    EXPECT_EQ(momentText(at(13, 23), now).toStdString(), "Yesterday at 23:05:00");
    EXPECT_EQ(momentText(at(12, 23), now).toStdString(), "12 Mar 2026 at 23:05:00");
}

TEST(SettingsWords, CountAndNameWhatHasChanged) {
    EXPECT_TRUE(countedDifferences({}).isEmpty());
    EXPECT_TRUE(wordedDifferences({}).isEmpty());
    const LayoutDifferences since{.onlyBefore = {},
                                  .onlyAfter = {"Atlas", "Beacon"},
                                  .moved = {{"Mail", "page 1", "folder Office"}},
                                  .tilesOnlyBefore = {"100 %1"},
                                  .tilesOnlyAfter = {},
                                  .isDockReordered = true};
    EXPECT_EQ(wordedDifferences(since).join(u'|').toStdString(),
              "New in Launchpad: Atlas, Beacon.|Mail moved from page 1 to folder Office.|Gone from the Dock: "
              "100 %1.|The tiles of the Dock stand in another order.");
    EXPECT_TRUE(countedDifferences(since).startsWith(QLatin1String("1 app")));
    EXPECT_EQ(countedDifferences(since).count(u','), 3);
}

TEST(LayoutDrawing, ShowsWhatLaunchpadShows) {
    const auto app = [](const char* id, bool isHidden = false) {
        return App{.rowID = {}, .title = id, .bundleID = id, .isHidden = isHidden};
    };
    LayoutSummary layout;
    layout.launchpad.pages = {{app("a"), app("hidden", true),
                               LaunchpadLayout::Folder{.rowID = {},
                                                       .title = "F",
                                                       .pages = {{app("b"), app("c", true)}, {app("gone")}}}}};
    layout.dock = {{.label = {}, .bundleID = "a"}};
    const LayoutDrawing drawing = drawingOf(layout, {{"a", MacPath("/A.app")}, {"b", MacPath("/B.app")}});
    const QVariantList items = drawing.pages[0].toMap()[QStringLiteral("items")].toList();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].toMap()[QStringLiteral("path")], QStringLiteral("/A.app"));
    EXPECT_EQ(items[1].toMap()[QStringLiteral("members")], QStringList({QStringLiteral("/B.app"), QString()}));
    EXPECT_EQ(drawing.tiles[0].toMap()[QStringLiteral("title")], QStringLiteral("a"));
}

} // namespace tavrik
