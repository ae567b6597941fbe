#include "ui/models/KeyedRows.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>

#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

struct Row {
    char letter = 0;
    int value = 0;

    std::string key() const { return std::string(1, letter); }

    bool operator==(const Row&) const = default;
};

/// "a b2" is two rows, the second one with another value.
std::vector<Row> rowsOf(const std::string& text) {
    std::vector<Row> rows;
    for (const char c : text) {
        if (c >= 'a')
            rows.push_back({c, 0});
        else if (c != ' ')
            rows.back().value = c - '0';
    }
    return rows;
}

struct Model : KeyedRows<Row> {
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? QVariant(rows()[static_cast<std::size_t>(index.row())].value)
                                       : QVariant();
    }

    using KeyedRows::setRows;
};

} // namespace

TEST(KeyedRows, KeepsTheRowsThatStayAndTellsOfThoseThatChanged) {
    struct {
        const char* before;
        const char* after;
        int changed;
        int where; ///< "b" has gone to; -1 when it is gone
    } const cases[] = {
        {"a b c", "a b c", 0, 1},    {"a b c", "a b2 c", 1, 1}, {"a b c", "c b a", 0, 1},
        {"a b c", "b", 0, 0},        {"a b c", "", 0, -1},      {"b", "x y b z", 0, 2},
        {"a b c d", "d b2 e", 1, 1}, {"a b c", "a c", 0, -1},
    };

    for (const auto& [before, after, changed, where] : cases) {
        Model model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setRows(rowsOf(before));
        const auto b = std::ranges::find(model.rows(), 'b', &Row::letter) - model.rows().begin();
        const QPersistentModelIndex kept = model.index(static_cast<int>(b));
        int told = 0;
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &model, [&told] { ++told; });
        EXPECT_EQ(model.setRows(rowsOf(after)), std::string(before) != after);
        EXPECT_EQ(model.rows(), rowsOf(after)) << before << " -> " << after;
        EXPECT_EQ(told, changed) << before << " -> " << after;
        EXPECT_EQ(kept.isValid() ? kept.row() : -1, where) << before << " -> " << after;
    }
}

} // namespace tavrik::test
