#include "system/AccessCheck.h"

#include "platform/PathRules.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"
#include "support/FileTree.h"
#include "support/practice/VirtualMac.h"

#include <gmock/gmock.h>

#include <cerrno>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace tavrik::test {

namespace {

const MacPath kSupport = practice::kApplicationSupport / practice::kBundleIdentifier;
const MacPath kPreferences = dockPreferencesPath(practice::kHome);
const MacPath kDatabase = launchpadDatabasePath(practice::kTemporaryFolder);

class AccessCheck : public testing::Test, protected VirtualMac {
protected:
    void refuse(const std::vector<MacPath>& places) {
        plist::Array list;
        for (const MacPath& place : places)
            list.emplace_back(place.string());
        ASSERT_TRUE(practice::writePropertyList(files, practice::kRefusedPaths, list));
    }

    std::vector<RefusedPlace> refused() const { return refusedPlaces(mac, kSupport); }
};

} // namespace

TEST_F(AccessCheck, FindsEachPlaceThatIsRefused) {
    const struct {
        MacPath refused;
        std::vector<RefusedPlace> found;
    } cases[] = {
        {kPreferences, {{kPreferences, Use::read}}},
        {kPreferences.parent(), {{kPreferences, Use::read}, {kPreferences.parent(), Use::write}}},
        {kDatabase.parent(), {{kDatabase, Use::read}}},
        {MacPath("/Applications"),
         {{MacPath("/Applications"), Use::list}, {MacPath("/Applications/Utilities"), Use::list}}},
        {practice::kApplicationSupport, {{practice::kApplicationSupport, Use::write}}},
        {wrapperFolder(practice::kHome), {}}, // not there yet, and what is made in its parent is not refused
        {practice::kHome / "Documents", {}},
    };

    for (const auto& [place, found] : cases) {
        refuse({place});
        EXPECT_THAT(refused(), ElementsAreArray(found)) << place.string();
    }
    ASSERT_TRUE(files.createFolder(wrapperFolder(practice::kHome)));
    refuse({wrapperFolder(practice::kHome)});
    EXPECT_THAT(refused(), ElementsAre(RefusedPlace{wrapperFolder(practice::kHome), Use::write}));
}

TEST_F(AccessCheck, TellsOtherFailuresFromRefusals) {
    files.setRule([](const FileOperation&) { return std::optional(EACCES); });
    EXPECT_THAT(refused(), IsEmpty());
    files.setRule([](const FileOperation&) { return std::optional(EPERM); });
    EXPECT_FALSE(refused().empty());
}

TEST_F(AccessCheck, LeavesNothingBehindAndNothingOfAPersonsOtherwise) {
    const MacPath theirs = kPreferences.parent() / ".tavrik-access";
    ASSERT_TRUE(files.write(theirs, bytesOf("a person's")));
    const auto before = treeOf(volume.root());
    ASSERT_TRUE(files.create(practice::kApplicationSupport / ".tavrik-access", {})); // of a killed check
    EXPECT_TRUE(checkAccess(mac, kSupport));
    EXPECT_THAT(differences(before, treeOf(volume.root())), IsEmpty());
}

TEST_F(AccessCheck, SendsThePersonWhereThisSystemHasIt) {
    const std::vector<RefusedPlace> reading{{kPreferences, Use::read}, {kDatabase, Use::read}};
    const std::vector<RefusedPlace> wrappers{{wrapperFolder(practice::kHome), Use::write}};

    const struct {
        const std::vector<RefusedPlace>& refused;
        int system;
        std::string where;
    } cases[] = {
        {reading, 12, "System Preferences > Security & Privacy > Privacy > Full Disk Access"},
        {reading, 13, "System Settings > Privacy & Security > Full Disk Access"},
        {wrappers, 12, "System Preferences > Security & Privacy > Privacy > Full Disk Access"},
        {wrappers, 15, "System Settings > Privacy & Security > App Management"},
    };

    for (const auto& [places, system, where] : cases)
        EXPECT_THAT(inWords(places, {system, 0, 0}, practice::kHome),
                    testing::StartsWith("Switch Tavrik on in " + where + " ("));
    EXPECT_THAT(inWords(reading, {13, 0, 0}, practice::kHome),
                testing::EndsWith("keeps it from ~/Library/Preferences/com.apple.dock.plist, " +
                                  kDatabase.string() + "."));
    EXPECT_EQ(inWords({}, {13, 0, 0}, practice::kHome), "");
}

} // namespace tavrik::test
