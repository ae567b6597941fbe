#include "platform/Log.h"

#include "support/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <string>

namespace tavrik::test {

TEST(Log, PrintsLinesAsTheyStandAndHandsThemToListeners) {
    std::FILE* const file = std::tmpfile();
    setLogStream(file);
    std::optional<LogRecorder> early(std::in_place);
    log("\n=== APPLYING PENDING CHANGES ===");
    LogRecorder late;
    log("  📌 indented 100%s");
    EXPECT_THAT(early->lines(),
                testing::ElementsAre("\n=== APPLYING PENDING CHANGES ===", "  📌 indented 100%s"));
    early.reset();
    setLogStream(file, "<", ">");
    log("");
    setLogStream(nullptr);
    log("silent");
    EXPECT_THAT(late.lines(), testing::ElementsAre("  📌 indented 100%s", "", "silent"));
    setLogStream(stdout);

    const std::string expected = "\n=== APPLYING PENDING CHANGES ===\n  📌 indented 100%s\n<>\n";
    std::string printed(200, ' ');
    std::rewind(file);
    printed.resize(std::fread(printed.data(), 1, printed.size(), file));
    EXPECT_EQ(printed, expected);
    std::fclose(file);
}

} // namespace tavrik::test
