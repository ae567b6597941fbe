#include "platform/practice/CustomIcon.h"

#include "platform/practice/AppleDouble.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/ResourceFork.h"
#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace tavrik::practice {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CustomIcon : public testing::Test {
protected:
    CustomIcon() {
        EXPECT_TRUE(m_files.createFolder(m_folder));
        EXPECT_TRUE(m_files.create(m_file, bytesOf("text")));
        EXPECT_TRUE(m_files.createLink(MacPath("/Apps/link"), "/Apps/Atlas.app"));
    }

    std::optional<std::string> iconOf(const MacPath& path) {
        const auto icon = readCustomIcon(m_files, path);
        return icon ? std::optional(std::string(textOf(*icon))) : std::nullopt;
    }

    AppleDouble companion(const MacPath& path) {
        const auto content = decodeAppleDouble(*m_files.read(companionOf(path)));
        EXPECT_TRUE(content) << path.string();
        return content ? *content : AppleDouble();
    }

    test::TemporaryFolder m_root;
    PracticeFileManager m_files{m_root.path()};
    MacPath m_folder{"/Apps/Atlas.app"};
    MacPath m_file{"/Apps/note.txt"};
};

} // namespace

TEST_F(CustomIcon, OfAFolderIsAnInvisibleFileInItAndAFlagBesideIt) {
    const auto before = test::treeOf(m_root.path());
    ASSERT_TRUE(writeCustomIcon(m_files, m_folder, bytesOf("picture")));
    EXPECT_THAT(differences(before, test::treeOf(m_root.path())),
                ElementsAre("+ Apps/._Atlas.app", "+ Apps/Atlas.app/._Icon\r", "+ Apps/Atlas.app/Icon\r"));
    EXPECT_EQ(iconOf(m_folder), "picture");
    EXPECT_EQ(companion(m_folder).finderInfo[8], 0x04);
    EXPECT_EQ(companion(m_folder / "Icon\r").finderInfo[8], 0x40);

    ASSERT_TRUE(writeCustomIcon(m_files, MacPath("/Apps/link"), bytesOf("another")));
    EXPECT_EQ(iconOf(m_folder), "another") << "through a link";
    ASSERT_TRUE(writeFinderInfo(m_files, m_folder, Bytes(32)));
    EXPECT_EQ(iconOf(m_folder), std::nullopt) << "without the flag";
    ASSERT_TRUE(writeCustomIcon(m_files, m_folder, bytesOf("picture")));
    ASSERT_TRUE(removeCustomIcon(m_files, m_folder));
    EXPECT_THAT(differences(before, test::treeOf(m_root.path())), IsEmpty());
    EXPECT_FALSE(writeFinderInfo(m_files, m_folder, Bytes(64, 1)));
}

TEST_F(CustomIcon, OfAPlainFileSharesItsCompanionWithWhatElseIsThere) {
    AppleDouble earlier;
    earlier.finderInfo = Bytes(32, 0x21);
    earlier.attributes = {0, 0, 'A', 'T', 'T', 'R'};
    const std::vector<Resource> text{{0x54455854, 128, 0, "Notes", bytesOf("kept")}};
    earlier.resourceFork = *encodeResourceFork(text);
    ASSERT_TRUE(m_files.create(companionOf(m_file), encodeAppleDouble(earlier)));

    ASSERT_TRUE(writeCustomIcon(m_files, m_file, bytesOf("picture")));
    EXPECT_EQ(iconOf(m_file), "picture");
    EXPECT_EQ(companion(m_file).finderInfo[8], 0x25);
    ASSERT_TRUE(removeCustomIcon(m_files, m_file));
    EXPECT_EQ(iconOf(m_file), std::nullopt);
    EXPECT_EQ(companion(m_file), earlier);

    earlier.resourceFork = {1, 2, 3};
    ASSERT_TRUE(m_files.write(companionOf(m_file), encodeAppleDouble(earlier)));
    EXPECT_FALSE(writeCustomIcon(m_files, m_file, bytesOf("picture"))) << "a fork that cannot be read";
    EXPECT_EQ(companion(m_file), earlier);
}

TEST_F(CustomIcon, IsWrittenOverADamagedCompanionAndRefusedWhereNothingIs) {
    ASSERT_TRUE(m_files.create(companionOf(m_folder), bytesOf("no AppleDouble")));
    EXPECT_EQ(iconOf(m_folder), std::nullopt);
    ASSERT_TRUE(writeCustomIcon(m_files, m_folder, bytesOf("picture")));
    EXPECT_EQ(iconOf(m_folder), "picture");

    EXPECT_FALSE(writeCustomIcon(m_files, MacPath("/Apps/none"), bytesOf("picture")));
    EXPECT_FALSE(writeCustomIcon(m_files, MacPath("/"), bytesOf("picture")));
    EXPECT_FALSE(m_files.exists(MacPath("/Apps/._none")));
}

} // namespace tavrik::practice
