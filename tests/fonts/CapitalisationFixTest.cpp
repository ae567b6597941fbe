#include "fonts/CapitalisationFix.h"

#include <gtest/gtest.h>

namespace tavrik::test {

TEST(CapitalisationFix, ChangesNothingButTheCaseOfLetters) {
    const struct {
        const char* plain;
        const char* fixed;
    } cases[] = {
        {"IPHONE", "iPhone"},
        {"vpn's", "VPN's"},
        {"VPNS", "VPNs"},
        {"IPHONE TOOLS", "Iphone Tools"},
        {"TV AND IOS apps", "TV AND IOS Apps"},
        {"a 3D vpn iTUNES", "A 3D Vpn Itunes"},
        {" two  blanks ", " Two  Blanks "},
        {"\xC3\x89T\xC3\x89S \xC3\xA9t\xC3\xA9", "\xC3\x89t\xC3\xA9s \xC3\x89t\xC3\xA9"},
        {"e\xCC\x81t\xC3\xA9", "E\xCC\x81t\xC3\xA9"},
        {"", ""},
    };

    for (const auto& [plain, fixed] : cases)
        EXPECT_EQ(withFixedCapitals(plain), fixed);
}

} // namespace tavrik::test
