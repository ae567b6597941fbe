#include "ApplyStage.h"

#include <cstdlib>
#include <random>

namespace tavrik::test {

namespace {

const std::vector<std::string> kApps = {kAtlas, kInkwell, kCinder, kFerrule, kMissionControl};
const std::vector<std::string> kStyles = {"Mathematical Bold", "Small Caps", "Mathematical Script"};

/// Random sessions against a model of what a person must see after each apply.
class ApplyHistory : public ApplyStage, public testing::WithParamInterface<unsigned> {
protected:
    struct App {
        std::vector<int> icons; ///< the row
        int chosen = -1;        ///< the number of its colour

        bool operator==(const App&) const = default;
    };

    struct Model {
        std::map<std::string, App> apps;
        std::string style; ///< empty for plain text

        bool operator==(const Model&) const = default;
    };

    int random(std::size_t below) {
        return std::uniform_int_distribution(0, static_cast<int>(below) - 1)(m_random);
    }

    void step() {
        const std::string& bundleID = kApps[static_cast<std::size_t>(random(kApps.size()))];
        App& app = staged.apps[bundleID];
        const int place = app.icons.empty() ? -1 : random(app.icons.size());
        const int icon = place < 0 ? -1 : app.icons[static_cast<std::size_t>(place)];
        switch (random(12)) {
        case 0:
        case 1:
        case 2:
            app.icons.push_back(++m_number);
            app.chosen = m_number;
            return add(bundleID, m_number);
        case 3:
            app.chosen = -1;
            return chooseNone(bundleID);
        case 4:
        case 5:
            if (icon < 0)
                return;
            app.chosen = icon;
            ASSERT_TRUE(pending().selectIcon(bundleID, place));
            return;
        case 6:
            if (icon < 0)
                return;
            ASSERT_TRUE(pending().removeIcon(bundleID, place));
            std::erase(app.icons, icon);
            app.chosen = app.chosen == icon ? -1 : app.chosen;
            return;
        case 7:
            staged.style = kStyles[static_cast<std::size_t>(random(kStyles.size()))];
            return pending().setPendingFont(staged.style);
        case 8:
            staged.style.clear();
            return pending().setPendingReset(true);
        case 9:
            staged = applied;
            return pending().clearAllPendingChanges();
        case 10:
            start();
            if (pending().hasRecoverableChanges()) {
                ASSERT_TRUE(pending().recover());
            }
            return;
        default:
            if (pending().hasPendingChanges())
                expectApplied();
            else
                EXPECT_EQ(staged, applied);
            applied = staged;
            return expectSeen();
        }
    }

    void expectSeen() {
        for (const auto& [bundleID, app] : applied.apps) {
            Look expected = restyled(bundleID, app.chosen);
            expected.isWrapper = app.chosen >= 0;
            expected.isTileWrapper = expected.isTileWrapper && expected.isWrapper;
            expected.title = styled(expected.title, applied.style);
            EXPECT_EQ(lookOf(bundleID), expected) << bundleID;
            EXPECT_EQ(permanentIcons(bundleID), app.icons) << bundleID;
        }
    }

    static Model untouched() {
        Model model;
        for (const std::string& bundleID : kApps)
            model.apps[bundleID] = {};
        return model;
    }

    Model staged = untouched();
    Model applied = untouched();

private:
    std::mt19937 m_random{GetParam()};
    int m_number = 0;
};

unsigned numberFrom(const char* variable, unsigned otherwise) {
    const char* wanted = std::getenv(variable);
    return wanted ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : otherwise;
}

} // namespace

TEST_P(ApplyHistory, ShowsWhatWasStagedAfterEveryApply) {
    for (int steps = 0; steps < 40 && !HasFailure(); ++steps)
        step();
}

/// TAVRIK_SESSIONS=100 tries more of them.
INSTANTIATE_TEST_SUITE_P(Seeds, ApplyHistory, testing::Range(1U, 1 + numberFrom("TAVRIK_SESSIONS", 6)));

} // namespace tavrik::test
