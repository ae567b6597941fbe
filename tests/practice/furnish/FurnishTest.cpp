#include "practice/furnish/Furnish.h"

#include "practice/furnish/HostFiles.h"
#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

namespace tavrik::practice {

namespace {

using test::differences;
using test::treeOf;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr FurnishOptions kSmall{.largestIcon = 16};

class Furnish : public testing::Test {
protected:
    static void write(const HostPath& file, std::string_view text) {
        std::filesystem::create_directories(file.parent().string());
        std::ofstream(file.string()) << text;
    }

    static std::string read(const HostPath& file) {
        const auto content = readHostFile(file);
        return content ? std::string(textOf(*content)) : "nothing";
    }

    /// What stands beside the programs' sources.
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_place.path().string()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    /// Paths of files that one Mac has and the other has not. Contents differ, since bookmarks hold file ids.
    static std::vector<std::string> missingOrExtra(const HostPath& one, const HostPath& other) {
        std::vector<std::string> lines = differences(treeOf(one), treeOf(other));
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("~"); });
        return lines;
    }

    HostPath furnishedElsewhere() {
        const HostPath other = m_sources.path() / "Other";
        EXPECT_TRUE(furnish(other, m_programs, kSmall));
        return other;
    }

    void SetUp() override {
        write(m_programs.tool, "the tool");
        write(m_programs.dock, "the dock");
    }

    test::TemporaryFolder m_sources;
    test::TemporaryFolder m_place;
    Programs m_programs{m_sources.path() / "tool", m_sources.path() / "dock"};
    HostPath m_root = m_place.path() / "Mac";
    HostPath m_letter = m_root / "Users/practice/Documents/letter.txt";
};

TEST_F(Furnish, TakesAMissingOrEmptyFolderAndRefusesAnyOther) {
    std::filesystem::create_directories(m_root.string());
    EXPECT_TRUE(furnish(m_root, m_programs, kSmall));
    EXPECT_THAT(missingOrExtra(furnishedElsewhere(), m_root), IsEmpty());

    write(m_place.path() / "Full/notes.txt", "mine");
    const auto before = treeOf(m_place.path());
    EXPECT_FALSE(furnish(m_place.path() / "Full", m_programs, kSmall));
    EXPECT_FALSE(furnishAnew(m_place.path() / "Full", m_programs, kSmall));
    EXPECT_FALSE(furnish(m_place.path() / "Full/notes.txt", m_programs, kSmall));
    EXPECT_FALSE(furnishAnew(m_place.path() / "Nowhere", m_programs, kSmall));
    EXPECT_THAT(differences(before, treeOf(m_place.path())), IsEmpty());
}

TEST_F(Furnish, KeepsWhatAPersonChangedAndBringsOnlyProgramsUpToDate) {
    ASSERT_TRUE(furnish(m_root, m_programs, kSmall));
    write(m_letter, "Dear friend");
    std::filesystem::remove((m_root / "serial-number").string());
    std::filesystem::remove((m_root / "usr/bin/xattr").string());
    std::ifstream running((m_root / "usr/bin/touch").string());
    write(m_programs.tool, "a newer tool");
    const auto before = treeOf(m_root);

    ASSERT_TRUE(furnish(m_root, m_programs, kSmall));
    EXPECT_THAT(differences(before, treeOf(m_root)),
                ElementsAre("~ System/Library/Frameworks/CoreServices.framework/Frameworks/"
                            "LaunchServices.framework/Support/lsregister",
                            "~ bin/ln", "~ usr/bin/chflags", "~ usr/bin/defaults", "~ usr/bin/killall",
                            "~ usr/bin/touch", "+ usr/bin/xattr"));
    EXPECT_EQ(read(m_root / "usr/bin/xattr"), "a newer tool");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(running), {}), "the tool") << "a program that runs";
}

TEST_F(Furnish, TwoProgramsAtOnceEndWithOneMac) {
    std::vector<std::future<Status>> outcomes;
    for (int i = 0; i < 4; ++i)
        outcomes.push_back(std::async(std::launch::async, [&] { return furnish(m_root, m_programs, kSmall); }));
    for (std::future<Status>& outcome : outcomes)
        EXPECT_TRUE(outcome.get());
    EXPECT_THAT(names(), ElementsAre("Mac"));
    EXPECT_THAT(missingOrExtra(furnishedElsewhere(), m_root), IsEmpty());
}

TEST_F(Furnish, LeavesNoTraceOnFailureAndAnewReplacesAMac) {
    const Programs missing{m_sources.path() / "none", m_programs.dock};
    EXPECT_FALSE(furnish(m_root, missing, kSmall));
    EXPECT_THAT(names(), IsEmpty());
    ASSERT_TRUE(furnish(m_root, m_programs, kSmall));
    write(m_letter, "Dear friend");
    const auto before = treeOf(m_place.path());
    EXPECT_FALSE(furnishAnew(m_root, missing, kSmall));
    EXPECT_THAT(differences(before, treeOf(m_place.path())), IsEmpty());

    ASSERT_TRUE(furnishAnew(m_root, m_programs, kSmall));
    EXPECT_THAT(missingOrExtra(furnishedElsewhere(), m_root), IsEmpty());
    EXPECT_THAT(names(), ElementsAre("Mac"));
}

TEST_F(Furnish, PutsRightWhatAKilledProgramLeft) {
    // What stands, in the order of the stages of furnishing anew, and which letter is kept.
    using Case = std::pair<std::string_view, const char*>;
    for (const auto& [left, letter] :
         {Case{"site", "nothing"}, Case{"Mac, site", "in the Mac"}, Case{"put away, site", "put away"},
          Case{"put away, Mac", "in the Mac"}}) {
        std::filesystem::remove_all(m_root.string());
        if (left.starts_with("put away")) {
            ASSERT_TRUE(furnish(m_root, m_programs, kSmall));
            write(m_letter, "put away");
            std::filesystem::rename(m_root.string(), (m_place.path() / ".Mac.put-away").string());
        }
        if (left.find("Mac") != left.npos) {
            ASSERT_TRUE(furnish(m_root, m_programs, kSmall));
            write(m_letter, "in the Mac");
        }
        if (left.ends_with("site"))
            write(m_place.path() / ".Mac.furnishing/Applications/half", "");

        EXPECT_TRUE(furnish(m_root, m_programs, kSmall) && isPracticeMac(m_root)) << left;
        EXPECT_EQ(read(m_letter), letter) << left;
        EXPECT_THAT(names(), ElementsAre("Mac")) << left;
    }
}

TEST_F(Furnish, IsWholeAfterAKillAtAnyMoment) {
    using namespace std::chrono_literals;
    const HostPath whole = furnishedElsewhere();
    for (auto delay = 0ms; delay <= 120ms; delay += 15ms) {
        for (const bool isAnew : {false, true}) {
            isAnew ? write(m_letter, "Dear friend") : void(std::filesystem::remove_all(m_root.string()));
            const pid_t child = ::fork();
            if (child == 0) {
                ignoreFailure((isAnew ? furnishAnew : furnish)(m_root, m_programs, kSmall));
                ::_exit(0);
            }
            ASSERT_GT(child, 0);
            std::this_thread::sleep_for(delay);
            ::kill(child, SIGKILL);
            ASSERT_EQ(::waitpid(child, nullptr, 0), child);
            ASSERT_TRUE(furnish(m_root, m_programs, kSmall)) << delay.count();
            auto unlike = missingOrExtra(whole, m_root);
            if (isAnew)
                std::erase(unlike, "+ Users/practice/Documents/letter.txt");
            EXPECT_THAT(unlike, IsEmpty()) << delay.count();
            EXPECT_THAT(names(), ElementsAre("Mac")) << delay.count();
        }
    }
}

} // namespace

} // namespace tavrik::practice
