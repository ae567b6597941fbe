#include "icons/list/ApplicationsModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::vector<ApplicationRow> rowsNamed(const std::string& letters) {
    std::vector<ApplicationRow> rows(letters.size());
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row].app.bundleID = letters[row];
    return rows;
}

/// A model under the eyes of Qt's own checks, which end the program, and what it tells a view.
class ApplicationsModelTest : public testing::Test {
protected:
    ApplicationsModelTest() {
        const auto note = [this](const char* what) {
            return [this, what](const QModelIndex&, int first, int last) {
                told.push_back(what + std::to_string(first) + "-" + std::to_string(last));
            };
        };
        QObject::connect(&model, &ApplicationsModel::rowsRemoved, note("removed "));
        QObject::connect(&model, &ApplicationsModel::rowsInserted, note("inserted "));
        QObject::connect(&model, &ApplicationsModel::rowsMoved,
                         [this](const QModelIndex&, int from, int, const QModelIndex&, int to) {
                             told.push_back("moved " + std::to_string(from) + " to " + std::to_string(to));
                         });
        QObject::connect(&model, &ApplicationsModel::dataChanged,
                         [this](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                             told.push_back("changed " + std::to_string(first.row()) + "-" +
                                            std::to_string(last.row()));
                             changed.insert(roles.begin(), roles.end());
                         });
    }

    QString identifierAt(int row) {
        return model.data(model.index(row), ApplicationsModel::bundleID).toString();
    }

    ApplicationsModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    std::vector<std::string> told;
    std::set<int> changed;
};

TEST_F(ApplicationsModelTest, TellsTheStepsFromOneSetOfRowsToTheNext) {
    const struct {
        std::string from;
        std::string to;
        std::vector<std::string> steps;
    } cases[] = {
        {"", "abc", {"inserted 0-2"}},
        {"abcdefg", "adg", {"removed 4-5", "removed 1-2"}},
        {"adg", "abcdefg", {"inserted 1-2", "inserted 4-5"}},
        {"abcd", "bcda", {"moved 0 to 4"}},
        {"abcd", "dabc", {"moved 3 to 0"}},
        {"abcd", "dcba", {"moved 2 to 4", "moved 1 to 4", "moved 0 to 4"}},
        {"abcd", "xcay", {"removed 3-3", "removed 1-1", "moved 0 to 2", "inserted 0-0", "inserted 3-3"}},
    };

    for (const auto& [from, to, steps] : cases) {
        model.show(rowsNamed(from));
        told.clear();
        model.show(rowsNamed(to));
        EXPECT_EQ(told, steps) << from << " to " << to;
    }
}

TEST_F(ApplicationsModelTest, TellsWhichRolesOfWhichRowsHaveChanged) {
    auto rows = rowsNamed("abcd");
    model.show(rows);
    told.clear();
    rows[1].app.selectedIconIndex = 0;
    rows[2].app.selectedIconIndex = 1;
    rows[3].app.id = "another";
    model.show(rows);
    EXPECT_THAT(told, ElementsAre("changed 1-2"));
    EXPECT_THAT(changed,
                UnorderedElementsAre(ApplicationsModel::isThemed, ApplicationsModel::selectedIconIndex));
}

TEST_F(ApplicationsModelTest, KeepsWhatTheViewHoldsOnToThroughAnyChanges) {
    std::mt19937 random(20'260);
    auto all = rowsNamed("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMN");
    for (int round = 0; round < 400; ++round) {
        std::map<std::string, QPersistentModelIndex> held;
        for (int row = 0; row < model.rowCount(); ++row)
            held.emplace(model.rows()[static_cast<std::size_t>(row)].app.bundleID, model.index(row));

        if (round % 3 == 0)
            std::ranges::shuffle(all, random);
        if (round % 7 == 0)
            std::ranges::reverse(all);
        const auto share = random() % 5;
        std::vector<ApplicationRow> rows;
        for (ApplicationRow& row : all) {
            if (random() % 4 == 0)
                row.app.selectedIconIndex = static_cast<int>(random() % 3) - 1;
            if (random() % 4 <= share)
                rows.push_back(row);
        }
        model.show(rows);

        ASSERT_EQ(model.rowCount(), static_cast<int>(rows.size()));
        for (int row = 0; row < model.rowCount(); ++row) {
            const ApplicationInfo& app = rows[static_cast<std::size_t>(row)].app;
            const auto at = [&](int role) { return model.data(model.index(row), role); };
            ASSERT_EQ(at(ApplicationsModel::bundleID).toString().toStdString(), app.bundleID);
            ASSERT_EQ(at(ApplicationsModel::selectedIconIndex).toInt(), app.selectedIconIndex);
            const auto before = held.extract(app.bundleID);
            ASSERT_TRUE(before.empty() || before.mapped().row() == row) << "round " << round;
        }
        for (const auto& [identifier, index] : held)
            ASSERT_FALSE(index.isValid()) << identifier << " in round " << round;
    }
}

} // namespace
} // namespace tavrik::test
