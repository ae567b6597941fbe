#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/PropertyList.h"
#include "platform/Result.h"

#include <sys/types.h>

#include <set>
#include <string>

namespace tavrik::practice {

/// Writes a new tree of files below a folder of the host. The first failure is kept and ends the writing: what
/// builds on it need not look after each call, and asks once at the end. Folders above a file are made as
/// needed. One thread.
class TreeWriter {
public:
    explicit TreeWriter(HostPath root);

    void folder(const MacPath& folder, mode_t mode = 0755);
    void file(const MacPath& file, ByteView content, mode_t mode = 0644);
    void propertyList(const MacPath& file, const plist::Value& value, plist::Format format, mode_t mode = 0644);
    void link(const MacPath& link, const std::string& target);
    /// To be set when nothing more will be put into a folder.
    void date(const MacPath& path, Date modified);

    /// Takes over the outcome of something that was written by other means.
    void note(const Status& outcome);

    const Status& status() const { return m_status; }

    /// Where the host keeps a path; links of the volume are not followed.
    HostPath host(const MacPath& path) const { return m_root / path.string(); }

    const HostPath& root() const { return m_root; }

private:
    bool failed() const { return !m_status; }

    HostPath m_root;
    std::set<MacPath> m_folders; ///< made so far
    Status m_status = Done{};
};

} // namespace tavrik::practice
