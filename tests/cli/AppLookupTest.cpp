#include "cli/AppLookup.h"

#include "cli/Table.h"

#include <gmock/gmock.h>

using namespace tavrik;
using testing::HasSubstr;

namespace {

ApplicationInfo app(const char* name, const char* bundleID) {
    ApplicationInfo info;
    info.name = name;
    info.bundleID = bundleID;
    info.path = MacPath(std::string("/Applications/") + name + ".app");
    return info;
}

} // namespace

TEST(AppLookup, FindsExactlyAndHintsAtTheNearest) {
    const std::vector<ApplicationInfo> apps{app("Atlas", "org.example.atlas"), app("Kite", "org.example.kite")};
    const auto found = findApp(apps, "org.example.kite");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "Kite");

    const struct {
        const char* typed;
        const char* hint;
    } cases[] = {
        {"org.example.Kite", "Did you mean org.example.kite"},
        {"org.example.atlsa", "Did you mean org.example.atlas"},
        {"kite", "Did you mean org.example.kite"},
        {"com.nobody.knows.this", "\"tavrikctl apps\" lists what there is."},
    };

    for (const auto& [typed, hint] : cases) {
        const auto missing = findApp(apps, typed);
        ASSERT_FALSE(missing) << typed;
        EXPECT_THAT(missing.error().description, HasSubstr(hint)) << typed;
    }
    EXPECT_THAT(findApp({}, "org.example.kite").error().description, HasSubstr("locked"));
}

TEST(AppLookup, SaysWhyAnApplicationCannotBeRestyled) {
    ApplicationInfo plain = app("Atlas", "org.example.atlas");
    EXPECT_EQ(refusal(plain, false), "");
    EXPECT_THAT(refusal(plain, true), HasSubstr("does not work through a wrapper"));

    ApplicationInfo outside = plain;
    outside.isUnsupportedApp = true;
    outside.path = MacPath("/opt/Atlas.app");
    EXPECT_THAT(refusal(outside, false), HasSubstr("/opt/Atlas.app, outside the standard places"));

    ApplicationInfo mobile = plain;
    mobile.isIOSApp = true;
    EXPECT_THAT(refusal(mobile, false), HasSubstr("is an iOS app"));
}

TEST(Table, AlignsColumnsByWhatAPersonCountsAsCharacters) {
    Table table({"A", "B"});
    table.add({"e\u0301te\u0301", "x"});
    table.add({"four", ""});
    EXPECT_EQ(table.text(), "A     B\ne\u0301te\u0301   x\nfour");
}
