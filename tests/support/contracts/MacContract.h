#pragma once

#include "platform/Alerts.h"
#include "platform/Bookmarks.h"
#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/Machine.h"
#include "platform/PosixFileManager.h"
#include "platform/Random.h"
#include "platform/Tools.h"
#include "platform/UserDefaults.h"
#include "platform/Volume.h"
#include "platform/Workspace.h"

#include <QColor>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

/// What the ports of a whole Mac promise, practice or real. `Adapter` is default-constructible and has `Mac&
/// mac()` and `std::vector<std::string> posted()`, the distributed notifications heard so far. The tests work
/// in an empty folder below the Mac's temporary one.
template<typename Adapter>
class MacContract : public testing::Test {
protected:
    MacContract() {
        ignoreFailure(mac.files.remove(folder));
        EXPECT_TRUE(mac.files.createFolder(folder));
    }

    ~MacContract() override { EXPECT_TRUE(mac.files.remove(folder)); }

    /// The colour in the middle of the icon that the Mac shows.
    QColor iconColour(const MacPath& path) const {
        const QImage icon = mac.workspace.icon(path);
        return icon.isNull() ? QColor() : icon.pixelColor(icon.width() / 2, icon.height() / 2);
    }

    Adapter adapter;
    Mac& mac = adapter.mac();
    const MacPath folder = MacPath(mac.volume.temporaryFolder()) / "contract é#1";
};

TYPED_TEST_SUITE_P(MacContract);

TYPED_TEST_P(MacContract, HostPathLeadsToTheSameFile) {
    ASSERT_TRUE(this->mac.files.write(this->folder / "file", bytesOf("content")));
    ASSERT_TRUE(this->mac.files.createLink(this->folder / "link", (this->folder / "file").string()));
    for (const char* name : {"file", "link"}) {
        const HostPath host = this->mac.volume.hostPath(this->folder / name);
        const auto content = PosixFileManager(HostPath("/")).read(MacPath(host.string()));
        ASSERT_TRUE(content) << content.error().description;
        EXPECT_EQ(textOf(*content), "content");
    }
    EXPECT_EQ(this->mac.volume.hostPath(this->folder / "not yet").name(), "not yet");
    EXPECT_TRUE(this->mac.volume.hostPath(this->folder / "no folder/file").empty());
}

TYPED_TEST_P(MacContract, BookmarksLeadBackToTheirTarget) {
    const Bookmarks& bookmarks = this->mac.bookmarks;
    const MacPath bundle = this->folder / "Visual Studio Code.app";
    EXPECT_FALSE(bookmarks.make(bundle));
    ASSERT_TRUE(this->mac.files.createFolder(bundle));
    const auto bookmark = bookmarks.make(bundle);
    ASSERT_TRUE(bookmark) << bookmark.error().description;

    const auto found = bookmarks.resolve(*bookmark);
    ASSERT_TRUE(found) << found.error().description;
    EXPECT_EQ(*this->mac.files.resolveLinks(*found), *this->mac.files.resolveLinks(bundle));
    for (std::size_t length = 0; length < bookmark->size(); length += 7)
        EXPECT_FALSE(bookmarks.resolve(ByteView(*bookmark).first(length))) << length;

    ASSERT_TRUE(this->mac.files.remove(bundle));
    EXPECT_FALSE(bookmarks.resolve(*bookmark));
    EXPECT_EQ(*bookmarks.recordedPath(*bookmark), *found) << "there or not";
}

TYPED_TEST_P(MacContract, FileURLsAreEncodedAndAFoldersEndsInASlash) {
    const std::string base = this->mac.bookmarks.fileURL(this->folder);
    EXPECT_TRUE(base.starts_with("file:///") && base.ends_with("/contract%20%C3%A9%231/")) << base;
    ASSERT_TRUE(this->mac.files.write(this->folder / "100%?[x].txt", {}));
    const std::string plain = "a+b,c;d=(e)'!$&@:~*-._.app";
    ASSERT_TRUE(this->mac.files.createFolder(this->folder / plain));
    EXPECT_EQ(this->mac.bookmarks.fileURL(this->folder / "100%?[x].txt"), base + "100%25%3F%5Bx%5D.txt");
    EXPECT_EQ(this->mac.bookmarks.fileURL(this->folder / plain), base + plain + "/");
}

TYPED_TEST_P(MacContract, ACustomIconIsShownUntilItIsCleared) {
    Workspace& workspace = this->mac.workspace;
    const MacPath bundle = this->folder / "App.app";
    EXPECT_FALSE(workspace.icon(bundle).isNull());
    ASSERT_TRUE(this->mac.files.createFolder(bundle));
    const QColor before = this->iconColour(bundle);
    QImage picture(64, 64, QImage::Format_ARGB32);
    for (const QColor colour : {QColor(250, 10, 10), QColor(10, 10, 250)}) {
        picture.fill(colour);
        ASSERT_TRUE(workspace.setIcon(bundle, picture));
        EXPECT_EQ(this->iconColour(bundle), colour);
    }
    EXPECT_TRUE(workspace.clearIcon(bundle));
    EXPECT_EQ(this->iconColour(bundle), before);
    EXPECT_TRUE(workspace.clearIcon(bundle));
    EXPECT_THAT(*this->mac.files.list(bundle), testing::IsEmpty());
    EXPECT_FALSE(workspace.setIcon(this->folder / "missing", picture));
}

TYPED_TEST_P(MacContract, ToolsGetTheirArgumentsAsTheyStand) {
    Tools& tools = this->mac.tools;
    const MacPath odd = this->folder / "a $(b) 'c' \"d\"";
    const auto touched = tools.run(MacPath("/usr/bin/touch"), {odd.string()});
    ASSERT_TRUE(touched) << touched.error().description;
    EXPECT_EQ(touched->exitStatus, 0) << touched->errors;
    EXPECT_TRUE(this->mac.files.exists(odd));

    const auto refused = tools.run(MacPath("/usr/bin/killall"), {"no process has this name"});
    ASSERT_TRUE(refused) << refused.error().description;
    EXPECT_EQ(refused->exitStatus, 1);
    EXPECT_THAT(refused->errors, testing::Not(testing::IsEmpty()));

    EXPECT_FALSE(tools.run(this->folder / "no such tool", {}));
}

TYPED_TEST_P(MacContract, DefaultsKeepEachTypeUntilRemoved) {
    UserDefaults& defaults = this->mac.defaults;
    const plist::Value values[] = {true, std::string("é"), 1.5, std::int64_t{-7},
                                   plist::Array{std::string("a")}};
    for (const plist::Value& value : values) {
        ASSERT_TRUE(defaults.set("ContractKey", value));
        EXPECT_EQ(defaults.value("ContractKey"), value);
    }
    ASSERT_TRUE(defaults.set("ContractKey", std::nullopt));
    EXPECT_EQ(defaults.value("ContractKey"), std::nullopt);
    EXPECT_TRUE(defaults.set("ContractKey", std::nullopt));
}

TYPED_TEST_P(MacContract, PostedNotificationsAreHeardInOrder) {
    for (const char* name : {"com.tavrik.contract.first", "com.tavrik.contract.second"})
        this->mac.notifications.post(name);
    std::vector<std::string> heard = this->adapter.posted();
    std::erase_if(heard, [](const std::string& name) { return !name.starts_with("com.tavrik.contract."); });
    EXPECT_THAT(heard, testing::ElementsAre("com.tavrik.contract.first", "com.tavrik.contract.second"));
}

TYPED_TEST_P(MacContract, SleepingTakesItsTime) {
    Clock& clock = this->mac.clock;
    const Date before = clock.now();
    clock.sleep(std::chrono::milliseconds(30));
    EXPECT_GE(clock.now().sinceReference - before.sinceReference, 0.029);
}

TYPED_TEST_P(MacContract, RandomBytesAreFresh) {
    const Bytes first = this->mac.random.bytes(300);
    EXPECT_EQ(first.size(), 300u);
    EXPECT_NE(first, this->mac.random.bytes(300));
    EXPECT_TRUE(this->mac.random.bytes(0).empty());
}

TYPED_TEST_P(MacContract, TheMachineIsKnownAndAQuestionAnswered) {
    EXPECT_GE(this->mac.machine.systemVersion(), (SystemVersion{.major = 11}));
    EXPECT_NE(this->mac.machine.serialNumber(), std::string()) << "an empty number is none";
    EXPECT_LT(this->mac.alerts.ask({.title = "A", .text = "b", .buttons = {"Yes", "No"}}), 2u);
}

TYPED_TEST_P(MacContract, PlacesAreAbsolute) {
    const Volume& volume = this->mac.volume;
    EXPECT_TRUE(volume.temporaryFolder().starts_with("/") && volume.temporaryFolder().ends_with("/"));
    EXPECT_TRUE(volume.applicationSupport().isInside(volume.home()));
    EXPECT_TRUE(volume.resource("Warning.rtf").string().starts_with("/"));
    EXPECT_EQ(volume.resource("Warning.rtf").name(), "Warning.rtf");
}

REGISTER_TYPED_TEST_SUITE_P(MacContract, HostPathLeadsToTheSameFile, BookmarksLeadBackToTheirTarget,
                            FileURLsAreEncodedAndAFoldersEndsInASlash, ACustomIconIsShownUntilItIsCleared,
                            ToolsGetTheirArgumentsAsTheyStand, DefaultsKeepEachTypeUntilRemoved,
                            PostedNotificationsAreHeardInOrder, SleepingTakesItsTime, RandomBytesAreFresh,
                            TheMachineIsKnownAndAQuestionAnswered, PlacesAreAbsolute);

} // namespace tavrik::test
