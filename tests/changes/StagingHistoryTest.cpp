#include "ChangesStage.h"
#include "platform/ChildProcess.h"
#include "platform/PosixFileManager.h"

#include <random>
#include <sstream>

namespace tavrik::test {

namespace {

const std::array<std::string, 2> kApps = {kAtlas, "com.example.tips"};

constexpr const char* kReader = R"(
import datetime, pathlib, plistlib, sys
for path in sorted(pathlib.Path(sys.argv[1]).iterdir()):
    root = plistlib.loads(path.read_bytes(), fmt=plistlib.FMT_XML)
    assert isinstance(root['timestamp'], datetime.datetime) and len(root) > 1 and all(root.values()), root
    print(len(root.get('iconChanges', {})))
)";

/// Random histories against a model: each application's row, what of it is applied, and what else is staged.
class Histories : public ChangesStage {
protected:
    struct Model {
        std::map<std::string, Row> rows{{kApps[0], {}}, {kApps[1], {}}};
        std::map<std::string, Row> applied = rows;
        std::vector<ThemeIconHide> hides;
        std::optional<std::string> font;
    };

    int random(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }

    int anyKind() { return random(28); }

    /// One step on the program and on the model. A killed program's answers mean nothing.
    void step(Model& model, int kind) {
        const std::string& bundleID = kApps[static_cast<std::size_t>(random(2))];
        Row& row = model.rows[bundleID];
        const int count = static_cast<int>(row.shown.size());
        const int place = count == 0 ? -1 : random(count);
        const int icon = place < 0 ? -1 : row.shown[static_cast<std::size_t>(place)];
        m_isApply = kind < 2;
        if (kind < 3) {
            if (m_isApply)
                apply();
            else
                changes().clearAllPendingChanges();
            (m_isApply ? model.applied : model.rows) = m_isApply ? model.rows : model.applied;
            model.hides.clear();
            model.font.reset();
        } else if (kind < 5) {
            model.font = model.font ? std::nullopt : std::optional("Mathematical Bold");
            changes().setPendingFont(model.font);
        } else if (kind < 7) {
            const ThemeIconHide hide{"theme" + std::to_string(random(3)), bundleID + ".png"};
            if (std::erase(model.hides, hide) > 0)
                return changes().unhideThemeIcon(hide.themeID, hide.iconFileName);
            changes().hideThemeIcon(hide.themeID, hide.iconFileName);
            model.hides.push_back(hide);
        } else if (kind < 13) {
            changes().selectIcon(bundleID, place < 0 ? std::nullopt : std::optional(place));
            row.chosen = icon;
        } else if (kind < 20) {
            changes().removeIcon(bundleID, place);
            std::erase(row.shown, icon);
            row.chosen = row.chosen == icon ? -1 : row.chosen;
        } else if (count < 7) {
            add(++m_lastIcon, bundleID);
            row.shown.push_back(m_lastIcon);
            row.chosen = m_lastIcon;
        }
    }

    /// What differs between the program and the model; nothing when they agree.
    std::string difference(const Model& model) {
        std::ostringstream text;
        for (const auto& [bundleID, wanted] : model.rows) {
            const Row found = row(bundleID);
            const auto present = onDisk(bundleID);
            if (found != wanted || !std::ranges::includes(present, sorted(wanted.shown)) ||
                std::ranges::adjacent_find(present) != present.end())
                text << bundleID << ": " << testing::PrintToString(found) << " in the place of "
                     << testing::PrintToString(wanted) << ", on disk " << testing::PrintToString(present)
                     << "\n";
            const auto permanent = program->store.listIcons(bundleID);
            for (std::size_t i = 0; i < permanent.size(); ++i) {
                if (permanent[i].name() != iconFileName(static_cast<int>(i)))
                    text << permanent[i].string() << " leaves a gap\n";
            }
            if (changes().iconRow(bundleID).pendingAdditionPaths != program->store.listPendingIcons(bundleID))
                text << "pending icons of " << bundleID << " are there that nothing names\n";
        }
        const StagedChanges& staged = changes().staged();
        if (staged.pendingThemeIconHides != model.hides || staged.pendingFont != model.font)
            text << "hides or font differ\n";
        if (files.exists(changes().tempFileURL()) != changes().hasPendingChanges())
            text << "the recovery file is there though nothing is staged, or is not\n";
        return text.str();
    }

    /// Kills the program within the step, often an apply, and within the recovery; starts it again, and tells
    /// which side of the step it is on.
    void killedStep(Model& model) {
        Model after = model;
        files.failAt(static_cast<std::size_t>(1 + random(60)), EIO, Times::forGood);
        step(after, random(3) == 0 ? 0 : anyKind());
        restart();
        files.failAt(static_cast<std::size_t>(1 + random(90)), EIO, Times::forGood);
        changes().recover();
        recover();
        const std::string fromBefore = difference(model);
        const std::string fromAfter = difference(after);
        EXPECT_TRUE(fromBefore.empty() || fromAfter.empty()) << fromBefore << "and\n" << fromAfter;
        // An apply that was cut short is on neither side in what is applied; repeated, it is done.
        if (m_isApply) {
            EXPECT_TRUE(apply() || fromAfter.empty());
        }
        if (m_isApply || fromAfter.empty())
            model = after;
    }

    std::mt19937 m_random;
    int m_lastIcon = 0;
    bool m_isApply = false; ///< the last step
};

} // namespace

TEST_F(Histories, NothingIsLostByKills) {
    const int given = GTEST_FLAG_GET(random_seed);
    const int seed = given != 0 ? given : static_cast<int>(std::random_device()() % 99'999 + 1);
    SCOPED_TRACE("repeat with --gtest_random_seed=" + std::to_string(seed));
    m_random.seed(static_cast<unsigned>(seed));
    TemporaryFolder copies;
    PosixFileManager host(copies.path());
    std::string expected;
    for (int history = 0; history < 10 && !HasFailure(); ++history) {
        Model model;
        for (int i = 0; i < 30 && !HasFailure(); ++i) {
            SCOPED_TRACE("history " + std::to_string(history) + ", step " + std::to_string(i));
            random(6) == 0 ? killedStep(model) : step(model, anyKind());
            EXPECT_EQ(difference(model), "");
        }
        if (const auto content = files.read(changes().tempFileURL(), 1 << 20)) {
            ASSERT_TRUE(host.create(MacPath("/" + std::to_string(history)), *content));
            expected += std::to_string(changes().staged().pendingChanges.size()) + "\n";
        }
        for (const std::string& bundleID : kApps)
            ignoreFailure(files.remove(program->store.iconCacheURL() / bundleID));
        changes().clearAllPendingChanges();
        restart();
    }
    const auto read = runChild(HostPath("/usr/bin/python3"), {"-c", kReader, copies.path().string()}, {});
    ASSERT_TRUE(read);
    EXPECT_EQ(read->output, expected) << read->errors;
}

} // namespace tavrik::test
