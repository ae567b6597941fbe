#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PracticeMac.h"
#include "support/TemporaryFolder.h"
#include "support/contracts/FileManagerContract.h"
#include "support/contracts/MacContract.h"

#include <sys/stat.h>

#include <sstream>

namespace tavrik::test {

namespace {

class PracticeFiles {
public:
    PracticeFiles() { EXPECT_TRUE(m_files.createFolder(base())); }

    FileManager& files() { return m_files; }

    MacPath base() const { return MacPath("/base"); }

private:
    TemporaryFolder m_root;
    practice::PracticeFileManager m_files{m_root.path()};
};

/// The smallest volume that a program can run on. Its tools are shell scripts, which know the volume by
/// their own path.
class PracticeAdapter {
public:
    PracticeAdapter() {
        EXPECT_TRUE(mac().files.createFolder(practice::kHome));
        EXPECT_TRUE(mac().files.createFolder(MacPath("/usr/bin")));
        EXPECT_TRUE(mac().files.createFolder(practice::kSystemVersionFile.parent()));
        EXPECT_TRUE(mac().files.create(
            practice::kSystemVersionFile,
            *plist::serialize(plist::Dictionary{{"ProductVersion", "14.6.1"}}, plist::Format::xml)));
        install("touch", "#!/bin/sh\n: >> \"${0%/usr/bin/touch}$1\"\n");
        install("killall", "#!/bin/sh\necho 'No matching processes' >&2\nexit 1\n");
        install("shell", "#!/bin/sh\nexec /bin/sh \"$@\"\n");
    }

    MacPath shell() const { return MacPath("/usr/bin/shell"); }

    Mac& mac() { return m_practice.mac(); }

    std::vector<std::string> posted() {
        const auto journal = mac().files.read(practice::kNotificationJournal);
        std::istringstream lines(journal ? std::string(textOf(*journal)) : "");
        std::vector<std::string> names;
        for (std::string line; std::getline(lines, line);)
            names.push_back(line.substr(line.find('\t') + 1));
        return names;
    }

private:
    void install(const std::string& name, std::string_view script) {
        const MacPath tool = MacPath("/usr/bin") / name;
        EXPECT_TRUE(mac().files.create(tool, bytesOf(script)));
        EXPECT_EQ(::chmod(mac().volume.hostPath(tool).string().c_str(), 0700), 0);
    }

    TemporaryFolder m_root;
    practice::PracticeMac m_practice{m_root.path()};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Practice, FileManagerContract, PracticeFiles);
INSTANTIATE_TYPED_TEST_SUITE_P(Practice, MacContract, PracticeAdapter);

} // namespace tavrik::test
