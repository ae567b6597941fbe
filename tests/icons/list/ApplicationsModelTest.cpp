#include "icons/list/ApplicationsModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

ApplicationRow rowNamed(const std::string& identifier) {
    ApplicationRow row;
    row.app.bundleID = identifier;
    row.app.name = "Name of " + identifier;
    return row;
}

std::vector<ApplicationRow> rowsNamed(const std::string& letters) {
    std::vector<ApplicationRow> rows;
    for (const char letter : letters)
        rows.push_back(rowNamed(std::string(1, letter)));
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
        QObject::connect(&model, &ApplicationsModel::modelReset, [this] { told.push_back("reset"); });
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
        {"abc", "abc", {}},
        {"abcdefg", "adg", {"removed 4-5", "removed 1-2"}},
        {"adg", "abcdefg", {"inserted 1-2", "inserted 4-5"}},
        {"abcd", "", {"removed 0-3"}},
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
    rows[3].isSquircle = false;
    model.show(rows);
    EXPECT_THAT(told, ElementsAre("changed 1-2"));
    EXPECT_THAT(changed,
                UnorderedElementsAre(ApplicationsModel::isThemed, ApplicationsModel::selectedIconIndex));

    told.clear();
    changed.clear();
    rows[0].app.pendingAdditionPaths.push_back(MacPath("/icons/icon_0.png"));
    rows[2].app.name = "Other";
    model.show(rows);
    EXPECT_THAT(told, ElementsAre("changed 0-0", "changed 2-2"));
    EXPECT_THAT(changed, UnorderedElementsAre(ApplicationsModel::displayIcons, ApplicationsModel::pendingCount,
                                              ApplicationsModel::title, Qt::DisplayRole));
    EXPECT_EQ(model.data(model.index(2), Qt::DisplayRole).toString(), QStringLiteral("Other"));
}

TEST_F(ApplicationsModelTest, KeepsWhatTheViewHoldsOnToThroughAnyChanges) {
    std::mt19937 random(20'260);
    std::vector<ApplicationRow> all;
    for (int number = 0; number < 40; ++number)
        all.push_back(rowNamed("app" + std::to_string(number)));
    for (int round = 0; round < 400; ++round) {
        std::map<QString, QPersistentModelIndex> held;
        for (int row = 0; row < model.rowCount(); ++row)
            held.emplace(identifierAt(row), model.index(row));

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
        for (std::size_t place = 0; place < rows.size(); ++place) {
            const auto identifier = QString::fromStdString(rows[place].app.bundleID);
            const int row = static_cast<int>(place);
            ASSERT_EQ(identifierAt(row), identifier);
            ASSERT_EQ(model.data(model.index(row), ApplicationsModel::selectedIconIndex).toInt(),
                      rows[place].app.selectedIconIndex);
            ASSERT_EQ(model.rowOf(rows[place].app.bundleID), row);
            const auto before = held.extract(identifier);
            ASSERT_TRUE(before.empty() || before.mapped().row() == row) << "round " << round;
        }
        for (const auto& [identifier, index] : held)
            ASSERT_FALSE(index.isValid()) << identifier.toStdString() << " in round " << round;
    }
    EXPECT_EQ(std::ranges::count(told, "reset"), 0);
    EXPECT_EQ(model.rowOf("nobody"), -1);
}

} // namespace
} // namespace tavrik::test
