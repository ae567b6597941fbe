#include "platform/PathComponent.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrik {

TEST(PathComponent, TellsSafeNamesFromUnsafeOnes) {
    const struct {
        std::string name;
        bool isSafe;
    } cases[] = {
        {"com.example.atlas", true},
        {"Caf\u00E9 \u65E5\u672C \U0001F600", true},
        {"...", true},
        {".hidden", true},
        {"a-b", true},
        {"a:b\\c", true},
        {std::string(255, 'x'), true},
        {std::string(256, 'x'), false},
        {"", false},
        {".", false},
        {"..", false},
        {"../etc", false},
        {"a/b", false},
        {"/", false},
        {"-rf", false},
        {std::string("a\0b", 3), false},
        {"a\nb", false},
        {"\x7F", false},
        {"\u0085", false},
        {"\u00A0", true},
        {"\xC3", false},         // cut short
        {"\xC0\xAF", false},     // "/" in two bytes
        {"\xE0\x80\xAF", false}, // "/" in three
        {"\xED\xA0\x80", false}, // half a surrogate pair
        {"\xF4\x90\x80\x80", false},
        {"\xF4\x8F\xBF\xBF", true},
        {"\xF8\x88\x80\x80\x80", false},
        {"\x80", false},
    };

    for (const auto& [name, isSafe] : cases)
        EXPECT_EQ(isSafePathComponent(name), isSafe) << testing::PrintToString(name);
}

} // namespace tavrik
