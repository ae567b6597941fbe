#pragma once

#include "platform/Alerts.h"
#include "platform/Bookmarks.h"
#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileManager.h"
#include "platform/LocalNotifications.h"
#include "platform/Mac.h"
#include "platform/Machine.h"
#include "platform/PosixFileManager.h"
#include "platform/Random.h"
#include "platform/Tools.h"
#include "platform/UserDefaults.h"
#include "platform/Volume.h"
#include "platform/Workspace.h"
#include "support/WaitFor.h"

#include <QColor>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <limits>

namespace tavrik::test {

/// What the ports of a whole Mac promise, practice or real. `Adapter` is default-constructible and has `Mac&
/// mac()`, `std::vector<std::string> posted()`, the distributed notifications heard so far, and `MacPath
/// shell()`, a tool that takes "-c" and a script. Its defaults must be a domain of the tests' own. The tests
/// work in an empty folder of their process below the Mac's temporary one.
template<typename Adapter>
class MacContract : public testing::Test {
protected:
    MacContract() {
        ignoreFailure(mac.files.remove(folder));
        EXPECT_TRUE(mac.files.createFolder(folder));
    }

    ~MacContract() override { EXPECT_TRUE(mac.files.remove(folder)); }

    /// The colour in the middle of the icon that the Mac shows, or so far from its left as part of its width.
    QColor iconColour(const MacPath& path, double across = 0.5) const {
        const QImage icon = mac.workspace.icon(path);
        return icon.isNull() ? QColor()
                             : icon.pixelColor(static_cast<int>(icon.width() * across), icon.height() / 2);
    }

    /// A Mac keeps icons it has shown for a moment, and takes them through its own colours.
    bool showsSoon(const MacPath& path, const QColor& colour, double across = 0.5) const {
        const auto isNear = [](int one, int other) { return std::abs(one - other) <= 6; };
        return waitFor(
            [&] {
                const QColor shown = iconColour(path, across);
                return isNear(shown.alpha(), colour.alpha()) &&
                       (colour.alpha() == 0 ||
                        (isNear(shown.red(), colour.red()) && isNear(shown.green(), colour.green()) &&
                         isNear(shown.blue(), colour.blue())));
            },
            std::chrono::seconds(5));
    }

    Adapter adapter;
    Mac& mac = adapter.mac();
    const MacPath folder =
        MacPath(mac.volume.temporaryFolder()) / ("tavrik-" + std::to_string(::getpid()) + " contract é#1");
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

TYPED_TEST_P(MacContract, FilesAndFoldersAreFlushed) {
    ASSERT_TRUE(this->mac.files.write(this->folder / "file", bytesOf("content")));
    ASSERT_TRUE(this->mac.files.createLink(this->folder / "link", "file"));
    for (const char* const name : {"file", "link", ""}) {
        const Status flushed = this->mac.files.flush(this->folder / name);
        EXPECT_TRUE(flushed) << flushed.error().description;
    }
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
    const auto recorded = bookmarks.recordedPath(*bookmark);
    ASSERT_TRUE(recorded) << recorded.error().description;
    EXPECT_EQ(*this->mac.files.resolveLinks(recorded->parent()), *this->mac.files.resolveLinks(found->parent()))
        << recorded->string() << ", there or not";
    EXPECT_EQ(recorded->name(), bundle.name());
}

TYPED_TEST_P(MacContract, BookmarksAndURLsKeepNamesInEitherNormalForm) {
    for (const char* const name : {"Caf\u00E9.app", "Cafe\u0301.app", "\u65E5\u672C \U0001F600.app"}) {
        const MacPath bundle = this->folder / name;
        ASSERT_TRUE(this->mac.files.createFolder(bundle));
        const auto bookmark = this->mac.bookmarks.make(bundle);
        const auto found = bookmark ? this->mac.bookmarks.resolve(*bookmark) : bookmark.error();
        ASSERT_TRUE(found) << name << ": " << found.error().description;
        EXPECT_EQ(this->mac.files.attributes(*found)->fileID, this->mac.files.attributes(bundle)->fileID);
        const QUrl url = QUrl::fromEncoded(QByteArray::fromStdString(this->mac.bookmarks.fileURL(bundle)));
        EXPECT_EQ(url.path(QUrl::FullyDecoded).toStdString(), bundle.string() + "/");
        ASSERT_TRUE(this->mac.files.remove(bundle));
    }
}

TYPED_TEST_P(MacContract, FileURLsAreEncodedAndAFoldersEndsInASlash) {
    const std::string base = this->mac.bookmarks.fileURL(this->folder);
    EXPECT_TRUE(base.starts_with("file:///") && base.ends_with("%20contract%20%C3%A9%231/")) << base;
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
        EXPECT_TRUE(this->showsSoon(bundle, colour));
        EXPECT_THAT(*this->mac.files.list(bundle), testing::Contains("Icon\r"));
    }
    EXPECT_TRUE(workspace.clearIcon(bundle));
    EXPECT_TRUE(this->showsSoon(bundle, before));
    EXPECT_TRUE(workspace.clearIcon(bundle));
    EXPECT_THAT(*this->mac.files.list(bundle), testing::IsEmpty());
    EXPECT_FALSE(workspace.setIcon(this->folder / "missing", picture));
}

TYPED_TEST_P(MacContract, CustomIconsKeepTheirTransparencyAndTheirSize) {
    const QColor clear(0, 0, 0, 0);
    const QColor half(20, 200, 40, 128);
    for (const int side : {32, 300, 1024}) {
        const MacPath bundle = this->folder / (std::to_string(side) + ".app");
        ASSERT_TRUE(this->mac.files.createFolder(bundle));
        QImage picture(side, side, QImage::Format_ARGB32);
        picture.fill(clear);
        for (int y = 0; y < side; ++y)
            for (int x = side / 2; x < side; ++x)
                picture.setPixelColor(x, y, half);
        ASSERT_TRUE(this->mac.workspace.setIcon(bundle, picture)) << side;
        EXPECT_TRUE(this->showsSoon(bundle, clear, 0.25)) << side;
        EXPECT_TRUE(this->showsSoon(bundle, half, 0.75)) << side;
        EXPECT_GE(this->mac.workspace.icon(bundle).width(), side);
    }
}

TYPED_TEST_P(MacContract, NobodyRunsUnderAStrangeName) {
    EXPECT_TRUE(this->mac.workspace.askToQuit("com.tavrik.contract.nobody"));
    EXPECT_TRUE(this->mac.workspace.forceTerminate("com.tavrik.contract.nobody"));
    for (const RunningApplication& application : this->mac.workspace.runningApplications())
        EXPECT_NE(application.bundleID, "");
}

TYPED_TEST_P(MacContract, ToolsEndAsTheyAreTold) {
    struct Case {
        const char* script;
        int exitStatus;
        const char* output;
        const char* errors;
    };

    const Case cases[] = {{"exit 7", 7, "", ""},
                          {"printf abcdefgh; printf xyz >&2", 0, "abcde", "xyz"},
                          {"kill -9 $$", 128 + 9, "", ""},
                          {"head -c 300000 /dev/zero >/dev/stderr; printf z", 0, "z", nullptr},
                          {"read line && echo $line", 1, "", ""}};
    for (const auto& [script, exitStatus, output, errors] : cases) {
        const auto told = this->mac.tools.run(this->adapter.shell(), {"-c", script}, {.outputBytes = 5});
        ASSERT_TRUE(told) << script << ": " << told.error().description;
        EXPECT_EQ(told->exitStatus, exitStatus) << script;
        EXPECT_EQ(told->output, output) << script;
        EXPECT_EQ(told->errors, errors ? std::string(errors) : std::string(5, '\0')) << script;
    }
    const auto endless = this->mac.tools.run(this->adapter.shell(), {"-c", "while :; do sleep 1; done"},
                                             {.time = std::chrono::milliseconds(100)});
    EXPECT_EQ(endless ? 0 : endless.error().code, ETIMEDOUT);
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
    ASSERT_TRUE(defaults.set("other", 1));
    const plist::Dictionary nested{{"a.b", plist::Array{}}, {"", plist::Dictionary{}}, {"é", std::string()}};
    const plist::Value values[] = {true,
                                   false,
                                   0,
                                   1,
                                   std::string("é\n"),
                                   1.5,
                                   2.0,
                                   std::int64_t{-7},
                                   std::numeric_limits<std::int64_t>::max(),
                                   Bytes{0, 255},
                                   Date{123.25},
                                   plist::Array{std::string("a"), nested},
                                   nested};
    for (const char* const key : {"ContractKey", "com.tavrik.a.b", "é ü/:"}) {
        for (const plist::Value& value : values) {
            ASSERT_TRUE(defaults.set(key, value)) << key;
            EXPECT_EQ(defaults.value(key), value) << key << " " << value.content().index();
        }
        EXPECT_EQ(defaults.value("com"), std::nullopt) << "a dot is part of the key";
        ASSERT_TRUE(defaults.set(key, std::nullopt));
        EXPECT_EQ(defaults.value(key), std::nullopt);
        EXPECT_TRUE(defaults.set(key, std::nullopt));
    }
    EXPECT_EQ(defaults.value("other"), plist::Value(1));
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(defaults.removeAll());
        EXPECT_EQ(defaults.value("other"), std::nullopt);
    }
    defaults.flushDockDomain();
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
    EXPECT_NO_THROW(this->mac.localNotifications.show({.title = "Tavrik", .text = "é\xFF"}));
}

TYPED_TEST_P(MacContract, PlacesAreAbsolute) {
    const Volume& volume = this->mac.volume;
    EXPECT_TRUE(volume.temporaryFolder().starts_with("/") && volume.temporaryFolder().ends_with("/"));
    EXPECT_TRUE(volume.applicationSupport().isInside(volume.home()));
    EXPECT_TRUE(volume.resource("Warning.rtf").string().starts_with("/"));
    EXPECT_EQ(volume.resource("Warning.rtf").name(), "Warning.rtf");
}

REGISTER_TYPED_TEST_SUITE_P(MacContract, HostPathLeadsToTheSameFile, FilesAndFoldersAreFlushed,
                            BookmarksLeadBackToTheirTarget, BookmarksAndURLsKeepNamesInEitherNormalForm,
                            FileURLsAreEncodedAndAFoldersEndsInASlash, ACustomIconIsShownUntilItIsCleared,
                            CustomIconsKeepTheirTransparencyAndTheirSize, NobodyRunsUnderAStrangeName,
                            ToolsEndAsTheyAreTold, ToolsGetTheirArgumentsAsTheyStand,
                            DefaultsKeepEachTypeUntilRemoved, PostedNotificationsAreHeardInOrder,
                            SleepingTakesItsTime, RandomBytesAreFresh, TheMachineIsKnownAndAQuestionAnswered,
                            PlacesAreAbsolute);

} // namespace tavrik::test
