#pragma once

#include "platform/Path.h"

namespace tavrik::test {

/// An empty folder of the host, gone with everything in it at the end of the test.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Absolute, with no link in it.
    const HostPath& path() const { return m_path; }

private:
    HostPath m_path;
};

} // namespace tavrik::test
