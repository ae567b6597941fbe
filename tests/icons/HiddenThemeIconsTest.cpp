#include "icons/HiddenThemeIcons.h"

#include "platform/UserDefaults.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

struct ReadOnlyDefaults : UserDefaults {
    explicit ReadOnlyDefaults(UserDefaults& of) : defaults(of) {}

    std::optional<plist::Value> value(std::string_view key) const override { return defaults.value(key); }

    Status set(std::string_view, std::optional<plist::Value>) override { return Error{"read-only"}; }

    void flushDockDomain() override {}

    UserDefaults& defaults;
};

} // namespace

TEST(HiddenThemeIcons, AreKeptByThemeBesideWhatOthersWrote) {
    SmallMac mac;
    ASSERT_TRUE(mac.mac.defaults.set("HiddenThemeIcons.dusk", plist::Array{"com.a.png", 7, "com.b.png"}));
    ASSERT_TRUE(mac.mac.defaults.set("HiddenThemeIcons.dawn", "no list"));
    HiddenThemeIcons icons(mac.mac.defaults);
    EXPECT_TRUE(icons.hide("dusk", "com.c.png"));
    EXPECT_TRUE(icons.hide("dusk", "com.c.png"));
    EXPECT_TRUE(icons.unhide("dusk", "com.a.png"));
    EXPECT_TRUE(icons.unhide("dusk", "com.never.png"));

    EXPECT_EQ(mac.mac.defaults.value("HiddenThemeIcons.dusk"),
              plist::Value(plist::Array{7, "com.b.png", "com.c.png"}));
    EXPECT_THAT(HiddenThemeIcons(mac.mac.defaults).hidden("dusk"), ElementsAre("com.b.png", "com.c.png"));
    EXPECT_FALSE(icons.isOffered("dusk", "com.b"));
    EXPECT_TRUE(icons.isOffered("dusk", "com.a"));
    EXPECT_TRUE(icons.isOffered("dawn", "com.b"));
    EXPECT_TRUE(icons.isOffered("dusk", "com.b.png"));
}

TEST(HiddenThemeIcons, AChangeThatCannotBeSavedIsToldAndChangesNothing) {
    SmallMac mac;
    ASSERT_TRUE(HiddenThemeIcons(mac.mac.defaults).hide("dusk", "com.a.png"));
    ReadOnlyDefaults readOnly(mac.mac.defaults);
    HiddenThemeIcons icons(readOnly);
    const LogRecorder log;
    EXPECT_FALSE(icons.hide("dusk", "com.b.png"));
    EXPECT_FALSE(icons.unhide("dusk", "com.a.png"));
    EXPECT_EQ(log.count("Failed to save the hidden icons of theme dusk: read-only"), 2u);
    EXPECT_THAT(icons.hidden("dusk"), ElementsAre("com.a.png"));
    EXPECT_TRUE(icons.hide("dusk", "com.a.png"));
}

} // namespace tavrik::test
