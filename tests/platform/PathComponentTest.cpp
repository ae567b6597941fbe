#include "platform/PathComponent.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrik {

TEST(PathComponent, TellsSafeNamesFromUnsafeOnes) {
    const std::string safe[] = {"com.example.atlas",
                                "Caf\u00E9 \u65E5\u672C \U0001F600",
                                "...",
                                ".hidden",
                                "a-b",
                                "a:b\\c",
                                "\u00A0",
                                "\U0010FFFF",
                                std::string(255, 'x')};
    for (const std::string& name : safe)
        EXPECT_TRUE(isSafePathComponent(name)) << testing::PrintToString(name);

    const std::string unsafe[] = {"", ".", "..", "../etc", "a/b", "/", "-rf", std::string("a\0b", 3), "a\nb",
                                  "\x7F", "\u0085", std::string(256, 'x'),
                                  // No UTF-8: cut short, "/" in two and in three bytes, half a surrogate pair,
                                  // beyond the last code point.
                                  "\xC3", "\x80", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                                  "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"};
    for (const std::string& name : unsafe)
        EXPECT_FALSE(isSafePathComponent(name)) << testing::PrintToString(name);
}

} // namespace tavrik
