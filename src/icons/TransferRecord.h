#pragma once

#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What the record of a transfer of icons says. Pure; any thread.
namespace tavrik {

class IconStore;

/// By what a file is known again under another name.
struct FileIdentity {
    std::uint64_t fileID = 0; ///< the inode
    std::uint64_t size = 0;   ///< bytes

    auto operator<=>(const FileIdentity&) const = default;
};

struct RecordedIcon {
    MacPath path;
    std::optional<FileIdentity> identity; ///< nothing when there was no such file

    bool operator==(const RecordedIcon&) const = default;
};

/// The icons of one application before a run.
struct TransferRecord {
    std::vector<RecordedIcon> shown;
    std::vector<RecordedIcon> marked;
    std::optional<RecordedIcon> selected; ///< the icon in use
    /// When an icon behind the permanent ones was in use, one of a theme: how far behind.
    std::optional<std::int64_t> selectedBehind;

    bool operator==(const TransferRecord&) const = default;
};

/// By bundle identifier.
using TransferRecords = std::map<std::string, TransferRecord>;

plist::Dictionary encodeTransferRecords(const TransferRecords& records);

/// What is read from a file that anybody may have written. An identifier that is no safe folder name leaves its
/// application out, and a path outside the application's own folders is forgotten, each with a line in
/// `remarks`; places are kept, so that the shown icons still match their row.
TransferRecords decodeTransferRecords(const plist::Value& root, const IconStore& store,
                                      std::vector<std::string>& remarks);

} // namespace tavrik
