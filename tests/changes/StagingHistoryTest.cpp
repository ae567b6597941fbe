#include "ChangesStage.h"
#include "platform/ChildProcess.h"
#include "platform/PosixFileManager.h"

#include <random>
#include <sstream>

namespace tavrik::test {

namespace {

const std::array<std::string, 2> kApps = {kAtlas, "com.example.tips"};

/// A handful of words about what is staged, for comparison with what another reader finds in the file.
std::string summary(const StagedChanges& staged) {
    std::ostringstream text;
    for (const auto& [bundleID, change] : staged.pendingChanges)
        text << bundleID << " " << change.iconPaths.size() << " " << change.selectedIndex.value_or(-1) << " ";
    for (const auto& [bundleID, marked] : staged.markedForDeletion)
        text << "marked " << bundleID << " " << marked.size() << " ";
    for (const auto& hide : staged.pendingThemeIconHides)
        text << "hide " << hide.themeID << " " << hide.iconFileName << " ";
    text << "font " << staged.pendingFont.value_or("-") << (staged.pendingReset ? " reset" : "");
    return text.str();
}

constexpr const char* kReader = R"(
import datetime, pathlib, plistlib, sys
for path in sorted(pathlib.Path(sys.argv[1]).iterdir()):
    root = plistlib.loads(path.read_bytes(), fmt=plistlib.FMT_XML)
    assert isinstance(root['timestamp'], datetime.datetime) and len(root) > 1 and all(root.values()), root
    words = []
    for bundle, change in sorted(root.get('iconChanges', {}).items()):
        words += [bundle, len(change['iconPaths']), change.get('selectedIndex', -1)]
    for bundle, marked in sorted(root.get('markedForDeletion', {}).items()):
        words += ['marked', bundle, len(marked)]
    for hide in root.get('themeIconHides', []):
        words += ['hide', hide['themeID'], hide['iconFileName']]
    words += ['font', root.get('pendingFont', '-')] + (['reset'] if root.get('pendingReset') else [])
    print(*words)
)";

/// Random histories against this model: each application's row, what of it is applied, and what else is staged.
class Histories : public ChangesStage {
protected:
    struct Icons {
        Row row;
        Row applied;

        bool operator==(const Icons&) const = default;
    };

    struct Model {
        std::map<std::string, Icons> icons{{kApps[0], {}}, {kApps[1], {}}};
        std::vector<ThemeIconHide> hides;
        std::optional<std::string> font;

        bool operator==(const Model&) const = default;
    };

    int random(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }

    /// One step on the program and on the model. A killed program's answers mean nothing.
    void step(Model& model) {
        const std::string& bundleID = kApps[static_cast<std::size_t>(random(2))];
        Row& row = model.icons[bundleID].row;
        const int count = static_cast<int>(row.shown.size());
        const int place = count == 0 ? -1 : random(count);
        m_isApply = false;
        switch (random(count > 6 ? 9 : 12)) {
        case 0: {
            changes().setPendingFont(model.font ? std::nullopt : std::optional("Mathematical Bold"));
            model.font = model.font ? std::nullopt : std::optional("Mathematical Bold");
            break;
        }
        case 1: {
            const ThemeIconHide hide{"theme" + std::to_string(random(3)), bundleID + ".png"};
            if (std::erase(model.hides, hide) > 0) {
                changes().unhideThemeIcon(hide.themeID, hide.iconFileName);
            } else {
                changes().hideThemeIcon(hide.themeID, hide.iconFileName);
                model.hides.push_back(hide);
            }
            break;
        }
        case 2:
            if (random(3) == 0) {
                m_isApply = true;
                apply();
                model.hides.clear();
                model.font.reset();
                for (auto& [id, icons] : model.icons)
                    icons.applied = icons.row;
            } else if (random(6) == 0) {
                changes().clearAllPendingChanges();
                model.hides.clear();
                model.font.reset();
                for (auto& [id, icons] : model.icons)
                    icons.row = icons.applied;
            }
            break;
        case 3:
        case 4:
        case 5:
            changes().selectIcon(bundleID, place < 0 ? std::nullopt : std::optional(place));
            row.chosen = place < 0 ? -1 : row.shown[static_cast<std::size_t>(place)];
            break;
        case 6:
        case 7:
        case 8:
            changes().removeIcon(bundleID, place);
            if (place >= 0) {
                const int removed = row.shown[static_cast<std::size_t>(place)];
                std::erase(row.shown, removed);
                row.chosen = row.chosen == removed ? -1 : row.chosen;
            }
            break;
        default:
            add(++m_lastIcon, bundleID);
            row.shown.push_back(m_lastIcon);
            row.chosen = m_lastIcon;
        }
    }

    /// What differs between the program and the model; nothing when they agree.
    std::string difference(const Model& model) {
        std::ostringstream text;
        std::set<MacPath> named;
        for (const auto& [bundleID, icons] : model.icons) {
            const Row found = row(bundleID);
            if (found != icons.row)
                text << bundleID << ": " << testing::PrintToString(found) << " in the place of "
                     << testing::PrintToString(icons.row) << "\n";
            const auto present = onDisk(bundleID);
            for (const int number : icons.row.shown) {
                if (std::ranges::count(present, number) != 1)
                    text << bundleID << ": icon " << number << " is lost or doubled\n";
            }
            for (const MacPath& icon : changes().iconRow(bundleID).pendingAdditionPaths)
                named.insert(icon);
            const auto permanent = program->store.listIcons(bundleID);
            for (std::size_t i = 0; i < permanent.size(); ++i) {
                if (permanent[i].name() != iconFileName(static_cast<int>(i)))
                    text << permanent[i].string() << " leaves a gap\n";
            }
            for (const MacPath& icon : program->store.listPendingIcons(bundleID)) {
                if (!named.contains(icon))
                    text << icon.string() << " is not named\n";
            }
        }
        if (changes().staged().pendingThemeIconHides != model.hides ||
            changes().staged().pendingFont != model.font)
            text << "hides or font differ\n";
        if (files.exists(changes().tempFileURL()) != changes().hasPendingChanges())
            text << "the recovery file is there though nothing is staged, or is not\n";
        return text.str();
    }

    /// Kills the program within the step, starts it again, and tells which side of the step it is on.
    void killedStep(Model& model) {
        Model after = model;
        files.failAt(static_cast<std::size_t>(1 + random(60)), EIO, Times::forGood);
        step(after);
        restart();
        changes().recover();
        const std::string isNotBefore = difference(model);
        const std::string isNotAfter = difference(after);
        EXPECT_TRUE(isNotBefore.empty() || isNotAfter.empty()) << "not as before:\n"
                                                               << isNotBefore << "and not as after:\n"
                                                               << isNotAfter;
        // An apply that was cut short is on neither side in what is applied; repeated, it is done.
        if (m_isApply) {
            EXPECT_TRUE(apply() || isNotAfter.empty());
        }
        if (m_isApply || isNotAfter.empty())
            model = after;
    }

    std::mt19937 m_random;
    int m_lastIcon = 0;
    bool m_isApply = false; ///< the last step
};

} // namespace

TEST_F(Histories, NothingIsLostByKills) {
    int seed = GTEST_FLAG_GET(random_seed);
    if (seed == 0)
        seed = static_cast<int>(std::random_device()() % 99'999 + 1);
    SCOPED_TRACE("repeat with --gtest_random_seed=" + std::to_string(seed));
    m_random.seed(static_cast<unsigned>(seed));
    TemporaryFolder copies;
    PosixFileManager host(copies.path());
    std::string expected;
    for (int history = 0; history < 10 && !HasFailure(); ++history) {
        Model model;
        for (int i = 0; i < 30 && !HasFailure(); ++i) {
            SCOPED_TRACE("history " + std::to_string(history) + ", step " + std::to_string(i));
            if (random(6) == 0)
                killedStep(model);
            else
                step(model);
            EXPECT_EQ(difference(model), "");
        }
        if (const auto content = files.read(changes().tempFileURL(), 1 << 20)) {
            ASSERT_TRUE(host.create(MacPath("/" + std::to_string(1000 + history)), *content));
            expected += summary(changes().staged()) + "\n";
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
