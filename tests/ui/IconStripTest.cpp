#include "ui/models/IconStrip.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace tavrik::test {

namespace {

struct Icons {
    QStringList display;
    QStringList theme;
};

struct Change {
    const char* what;
    Icons from;
    Icons to;
    int inserted; ///< tiles
    int removed;
};

std::ostream& operator<<(std::ostream& out, const Change& change) {
    return out << change.what;
}

QStringList list(const char* icons) {
    return QString::fromLatin1(icons).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A letter for each tile, with its place: "o-1 c0 + t1".
std::string textOf(const IconStrip& strip) {
    QStringList tiles;
    for (int row = 0; row < strip.count(); ++row) {
        const auto text = [&](const char* role) {
            return strip.tile(row, QString::fromLatin1(role)).toString();
        };
        tiles.append(QString::fromLatin1("oc+t").at(strip.tile(row, QStringLiteral("kind")).toInt()) +
                     text("path") + text("place"));
    }
    return tiles.join(QLatin1Char(' ')).toStdString();
}

void give(IconStrip& strip, const Icons& icons) {
    strip.setDisplayIcons(icons.display);
    strip.setThemeIcons(icons.theme);
}

int tilesIn(const QSignalSpy& spy) {
    int count = 0;
    for (const auto& rows : spy)
        count += rows[2].toInt() - rows[1].toInt() + 1;
    return count;
}

} // namespace

class IconStripChange : public testing::TestWithParam<Change> {};

TEST_P(IconStripChange, TouchesNoMoreTilesThanItMust) {
    const Change& change = GetParam();
    IconStrip strip;
    give(strip, change.from);
    const QSignalSpy inserted(&strip, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(&strip, &QAbstractItemModel::rowsRemoved);
    give(strip, change.to);
    EXPECT_EQ(tilesIn(inserted), change.inserted);
    EXPECT_EQ(tilesIn(removed), change.removed);

    IconStrip fresh;
    give(fresh, change.to);
    EXPECT_EQ(textOf(strip), textOf(fresh));
}

INSTANTIATE_TEST_SUITE_P(
    Changes, IconStripChange,
    testing::Values(
        Change{"an added icon", {list("a b"), list("t")}, {list("a b c"), list("t")}, 1, 0},
        Change{"the first one removed", {list("a b c"), {}}, {list("b c"), {}}, 0, 1},
        Change{"a theme", {list("a"), list("t")}, {list("a"), list("s t")}, 1, 0},
        Change{"a hidden theme icon", {{}, list("s t u")}, {{}, list("s u")}, 0, 1},
        Change{"equal neighbours", {list("a a"), {}}, {list("a a a"), {}}, 1, 0},
        Change{"another application with fewer", {list("a b c"), list("t")}, {list("d"), list("u")}, 0, 2},
        Change{"another application with none", {list("a b"), list("t u")}, {}, 0, 4}));

TEST(IconStrip, PutsThePlaceOfTheTileThatAddsBetweenTheIconsAndTheThemes) {
    IconStrip strip;
    give(strip, {list("a b"), list("t u")});
    EXPECT_EQ(textOf(strip), "o-1 ca0 cb1 +2 tt2 tu3");
    for (const auto& [index, tile] : {std::pair(-1, 0), {0, 1}, {1, 2}, {2, 4}, {3, 5}}) {
        strip.setSelectedIconIndex(index);
        EXPECT_EQ(strip.selectedTile(), tile);
        for (int row = 0; row < strip.count(); ++row)
            EXPECT_EQ(strip.tile(row, QStringLiteral("isChosen")).toBool(), row == tile) << index << row;
    }
    EXPECT_FALSE(strip.tile(6, QStringLiteral("path")).isValid());
}

TEST(IconStrip, MarksThePendingIconsAtTheEndOfTheOwnOnes) {
    IconStrip strip;
    give(strip, {list("a b c"), list("t")});
    strip.setPendingCount(2);
    std::string marks;
    for (int row = 0; row < strip.count(); ++row)
        marks += strip.tile(row, QStringLiteral("isPending")).toBool() ? '*' : '.';
    EXPECT_EQ(marks, "..**..");
}

} // namespace tavrik::test
