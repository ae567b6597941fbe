#pragma once

#include "icons/TransferRecord.h"

#include <map>
#include <optional>
#include <set>
#include <string>

namespace tavrik {

class FileManager;

/// The icon files of one application as they stand at one moment, by identity. A value; making it blocks on the
/// disk.
class IconWhereabouts {
public:
    /// An error when a folder or a file cannot be looked at: nothing may be taken for lost then.
    static Result<IconWhereabouts> look(const FileManager& files, const IconStore& store,
                                        const std::string& bundleID);

    std::optional<MacPath> find(const std::optional<FileIdentity>& identity) const;

    /// Nothing when there is no icon file.
    std::optional<FileIdentity> identity(const MacPath& path) const;

    /// How many there are in one of the two folders.
    std::int64_t countIn(const MacPath& folder) const;

    /// As what a recorded icon is known now. A file that was copied elsewhere and back has another number, so
    /// its path decides, unless another icon of the record stands there.
    std::optional<FileIdentity> recognize(const RecordedIcon& icon, const TransferRecord& record) const;

private:
    std::map<MacPath, FileIdentity> m_identities;
    std::map<FileIdentity, MacPath> m_paths;
};

} // namespace tavrik
