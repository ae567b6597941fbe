#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class Clock;
class FileManager;
struct Mac;

/// The folder of the backups, "Backups" in the support folder, and the names in it. A folder that is a symbolic
/// link is refused; entries that are links or folders are no backups, nor are those whose name begins with a
/// dot. Background thread; blocks on the disk. One change at a time.
///
/// A kill while a backup is written leaves at most a file whose name has ".new" behind the extension, which
/// `removeLeftovers` removes.
class BackupFolder {
public:
    static constexpr const char* kExtension = "encrypted";
    static constexpr const char* kOriginalState = "Original State.encrypted";

    BackupFolder(Mac& mac, const MacPath& supportFolder);

    const MacPath& path() const { return m_path; }

    struct Entry {
        MacPath url;
        Date date;              ///< of creation
        std::uint64_t size = 0; ///< bytes
    };

    /// Every backup by its date of creation, the oldest first, and by name where that is equal. A missing
    /// folder is empty. An error when the folder, or any backup in it, cannot be looked at: what is not known
    /// to be empty is not the place for a first backup.
    Result<std::vector<Entry>> read() const;

    /// The same, and empty, with a log line, where there is an error.
    std::vector<Entry> entries() const;

    /// Writes a new backup, complete and on stable storage, under the name of the first one or of the present
    /// second, local time. A name that is taken is left alone: a dated backup waits for the clock's next
    /// second, a few times. On failure nothing is there.
    Result<MacPath> add(ByteView container, bool isFirst);

    /// Deletes the oldest dated backups until `keep` remain, at least 1, and then makes the oldest dated one
    /// the original state when there is none. Those in `spared` are neither deleted nor renamed: the next
    /// rotation may. Failures are logged and the next one follows.
    void rotate(std::int64_t keep, const std::set<MacPath>& spared);

    /// Removes what a kill left of a backup that was being written. Fine when there is nothing.
    void removeLeftovers();

private:
    Result<MacPath> addDated(ByteView container);
    bool isTaken(const MacPath& file) const;
    void makeOriginalState(const MacPath& oldest);

    FileManager& m_files;
    Clock& m_clock;
    const MacPath m_supportFolder;
    const MacPath m_path;
};

} // namespace tavrik
