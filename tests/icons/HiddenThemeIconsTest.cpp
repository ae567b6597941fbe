#include "icons/HiddenThemeIcons.h"

#include "platform/UserDefaults.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

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
    EXPECT_THAT(icons.hidden("dusk"), testing::ElementsAre("com.b.png", "com.c.png"));
    EXPECT_FALSE(icons.isOffered("dusk", "com.b"));
    EXPECT_TRUE(icons.isOffered("dusk", "com.a"));
    EXPECT_TRUE(icons.isOffered("dawn", "com.b"));
}

} // namespace tavrik::test
