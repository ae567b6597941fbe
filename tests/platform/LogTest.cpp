#include "platform/Log.h"

#include "support/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <optional>
#include <sstream>
#include <thread>

namespace tavrik::test {

namespace {

/// Takes the place of standard output for as long as it lives.
class LogFile {
public:
    LogFile() { setLogStream(m_file); }

    ~LogFile() {
        setLogStream(stdout);
        std::fclose(m_file);
    }

    std::string text() {
        std::rewind(m_file);
        std::string text;
        for (int character = std::fgetc(m_file); character != EOF; character = std::fgetc(m_file))
            text += static_cast<char>(character);
        return text;
    }

private:
    std::FILE* m_file = std::tmpfile();
};

} // namespace

TEST(Log, PrintsLinesAsTheyStandAndHandsThemToListeners) {
    LogFile file;
    std::optional<LogRecorder> early(std::in_place);
    log("\n=== APPLYING PENDING CHANGES ===");
    LogRecorder late;
    log("  📌 indented 100%s");
    EXPECT_THAT(early->lines(),
                testing::ElementsAre("\n=== APPLYING PENDING CHANGES ===", "  📌 indented 100%s"));
    early.reset();
    log("");
    setLogStream(nullptr);
    log("silent");
    EXPECT_THAT(late.lines(), testing::ElementsAre("  📌 indented 100%s", "", "silent"));
    EXPECT_EQ(file.text(), "\n=== APPLYING PENDING CHANGES ===\n  📌 indented 100%s\n\n");
}

TEST(Log, LinesOfManyThreadsNeverInterleaveAndListenersComeAndGo) {
    LogFile file;
    std::atomic<bool> stop = false;
    std::thread listening([&] {
        while (!stop) {
            const auto heard = std::make_unique<std::size_t>(0);
            const LogListener listener([count = heard.get()](std::string_view line) { *count += line.size(); });
        }
    });
    std::vector<std::thread> threads;
    for (char letter = 'a'; letter < 'e'; ++letter) {
        threads.emplace_back([letter] {
            for (int i = 0; i < 200; ++i)
                log(std::string(50, letter));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    stop = true;
    listening.join();
    std::map<std::string, int> counts;
    std::istringstream lines(file.text());
    for (std::string line; std::getline(lines, line);)
        ++counts[line];
    EXPECT_THAT(counts, testing::ElementsAre(testing::Pair(std::string(50, 'a'), 200),
                                             testing::Pair(std::string(50, 'b'), 200),
                                             testing::Pair(std::string(50, 'c'), 200),
                                             testing::Pair(std::string(50, 'd'), 200)));
}

} // namespace tavrik::test
