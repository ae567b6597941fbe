#include "platform/PathRules.h"
#include "platform/macos/FoundationText.h"
#include "platform/macos/MacosDefaults.h"
#include "platform/macos/MacosMac.h"
#include "support/contracts/MacContract.h"

#import <Foundation/Foundation.h>
#include <unistd.h>

namespace tavrik::test {

namespace {

/// Takes the button that loses nothing.
class NobodyAnswers : public Alerts {
public:
    std::size_t ask(const Alert& alert) override { return alert.buttonWithoutAnswer(); }
};

/// Hears the notifications whose names the contract posts. They come while the main run loop runs.
class Listener {
public:
    Listener() {
        for (NSString* name in @[ @"com.tavrik.contract.first", @"com.tavrik.contract.second" ]) {
            [m_tokens addObject:[centre() addObserverForName:name
                                                      object:nil
                                                       queue:nil
                                                  usingBlock:^(NSNotification* notification) {
                                                    [m_names addObject:notification.name];
                                                  }]];
        }
    }

    ~Listener() {
        for (id token in m_tokens)
            [centre() removeObserver:token];
    }

    std::vector<std::string> heard() const {
        NSDate* const latest = [NSDate dateWithTimeIntervalSinceNow:5];
        while (m_names.count < m_tokens.count && latest.timeIntervalSinceNow > 0)
            [NSRunLoop.currentRunLoop runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
        std::vector<std::string> names;
        for (NSString* name in m_names)
            names.push_back(macos::toString(name));
        return names;
    }

private:
    static NSDistributedNotificationCenter* centre() { return NSDistributedNotificationCenter.defaultCenter; }

    NSMutableArray* const m_tokens = [NSMutableArray array];
    NSMutableArray<NSString*>* const m_names = [NSMutableArray array];
};

/// The Mac that runs the tests, but for the defaults: those are of the tests' own, and gone afterwards. Nothing
/// here writes outside them and the temporary folder, and no program is told to end.
class MacosAdapter {
public:
    ~MacosAdapter() { EXPECT_TRUE(m_defaults.removeAll()); }

    Mac& mac() { return m_mac; }

    std::vector<std::string> posted() { return m_listener.heard(); }

    MacPath shell() const { return MacPath("/bin/sh"); }

private:
    NobodyAnswers m_nobody;
    macos::MacosMac m_own{m_nobody};
    macos::MacosDefaults m_defaults{"com.tavrik.contract." + std::to_string(::getpid()),
                                    m_own.mac().volume.home()};
    Mac m_mac{.volume = m_own.mac().volume,
              .files = m_own.mac().files,
              .bookmarks = m_own.mac().bookmarks,
              .workspace = m_own.mac().workspace,
              .tools = m_own.mac().tools,
              .notifications = m_own.mac().notifications,
              .defaults = m_defaults,
              .machine = m_own.mac().machine,
              .clock = m_own.mac().clock,
              .alerts = m_own.mac().alerts,
              .random = m_own.mac().random,
              .localNotifications = m_own.mac().localNotifications};
    Listener m_listener;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Macos, MacContract, MacosAdapter);

TEST(MacosMac, FindsWhatTheProgramWorksOn) {
    MacosAdapter adapter;
    const Mac& mac = adapter.mac();
    EXPECT_TRUE(mac.files.exists(mac.volume.home() / "Library/Preferences"));
    EXPECT_TRUE(mac.files.exists(mac.volume.applicationSupport()));
    EXPECT_TRUE(mac.volume.temporaryFolder().starts_with("/var/folders/")) << mac.volume.temporaryFolder();
    const MacPath cacheFolder = launchpadDatabasePath(mac.volume.temporaryFolder()).parent().parent().parent();
    EXPECT_TRUE(mac.files.exists(cacheFolder)) << cacheFolder.string();
    for (const char* tool :
         {"/usr/bin/killall", "/usr/bin/defaults", "/usr/bin/chflags", "/usr/bin/xattr", "/usr/bin/touch",
          "/bin/ln",
          "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
          "lsregister"})
        EXPECT_TRUE(mac.files.exists(MacPath(tool))) << tool;
    EXPECT_THAT(mac.workspace.runningApplications(),
                testing::Contains(testing::Field(&RunningApplication::bundleID, "com.apple.dock")));
}

TEST(MacosMac, ReadsTheDocksPreferences) {
    MacosAdapter adapter;
    const auto content = adapter.mac().files.read(dockPreferencesPath(adapter.mac().volume.home()));
    ASSERT_TRUE(content) << content.error().description;
    const auto list = plist::parse(*content);
    ASSERT_TRUE(list) << list.error().description;
    EXPECT_NE(list->find<plist::Array>("persistent-apps"), nullptr);
}

TEST(MacosMac, FindsABundleThatWasRenamed) {
    MacosAdapter adapter;
    const Mac& mac = adapter.mac();
    const MacPath folder = *mac.files.resolveLinks(MacPath(mac.volume.temporaryFolder())) /
                           ("tavrik-renamed-" + std::to_string(::getpid()));
    ASSERT_TRUE(mac.files.createFolder(folder / "Old.app"));
    const auto bookmark = mac.bookmarks.make(folder / "Old.app");
    ASSERT_TRUE(bookmark) << bookmark.error().description;
    ASSERT_TRUE(mac.files.move(folder / "Old.app", folder / "New.app"));
    const auto found = mac.bookmarks.resolve(*bookmark);
    EXPECT_EQ(found ? *mac.files.resolveLinks(*found) : MacPath(found.error().description), folder / "New.app");
    EXPECT_TRUE(mac.files.remove(folder));
}

TEST(MacosMac, DrawsTheIconsOfApplicationsAtFullSize) {
    MacosAdapter adapter;
    const QImage icon = adapter.mac().workspace.icon(MacPath("/System/Applications/Calculator.app"));
    EXPECT_GE(icon.width(), 512);
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << "the corners are clear";
    EXPECT_GT(icon.pixelColor(icon.width() / 2, icon.height() / 2).alpha(), 250);
}

} // namespace tavrik::test
