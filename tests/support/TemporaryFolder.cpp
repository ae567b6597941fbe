#include "support/TemporaryFolder.h"

#include "platform/PosixFileManager.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>

namespace tavrik::test {

TemporaryFolder::TemporaryFolder() {
    std::string name = testing::TempDir() + "/tavrik-XXXXXX";
    char resolved[PATH_MAX];
    if (!::mkdtemp(name.data()) || !::realpath(name.c_str(), resolved)) {
        std::perror(name.c_str());
        std::abort();
    }
    m_path = HostPath(resolved);
}

TemporaryFolder::~TemporaryFolder() {
    const Status removed = PosixFileManager(HostPath("/")).remove(MacPath(m_path.string()));
    EXPECT_TRUE(removed) << removed.error().description;
}

} // namespace tavrik::test
