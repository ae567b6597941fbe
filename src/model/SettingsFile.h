#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/PropertyList.h"
#include "platform/Result.h"

#include <memory>
#include <mutex>
#include <optional>

namespace tavrik {

class FileManager;

/// The settings on disk: "AppSettings.plist", its one-generation copy "AppSettings.backup" and the transient
/// "AppSettings.tmp", all in one folder. Failures are logged here, whole, and go no further than an empty or
/// false answer. Blocks on the disk. Not locked: only `read` may run beside another operation, since the file
/// is only ever replaced in one step.
class SettingsFile {
public:
    SettingsFile(FileManager& files, const MacPath& folder);

    using Content = std::shared_ptr<const plist::Dictionary>;

    /// What the main file holds; null when it is missing, unreadable, damaged or empty. Changes and logs
    /// nothing. The file is read each time, and parsed when it is not the same as the last time.
    Content read() const;

    /// The same with its fallback: the backup, which is then put in the place of a missing or damaged main
    /// file; at worst an empty dictionary. Damaged files stay on disk for inspection.
    ///
    /// A main file that is there and cannot be read (the disk fails, no descriptors are left) may well be good:
    /// it is left alone, and saving is refused until it loads again.
    ///
    /// Without repair the backup stays where it is, and its content is the answer all the same.
    enum class Repair { no, yes };
    plist::Dictionary load(Repair repair = Repair::yes);

    enum class Saved {
        no,        ///< the main file holds what it held before
        unflushed, ///< the new content stands, but the system did not confirm that it is on stable storage
        yes,
    };

    /// Writes the whole dictionary: backup copy, temporary file, flush, replacement in one step. An empty
    /// dictionary is refused. A failure leaves no temporary file; a kill leaves the main file old or new.
    Saved save(plist::Dictionary settings);

private:
    /// What was parsed last, and of what.
    struct Parsed {
        Bytes data;
        Content content;
    };

    Content contentOf(Bytes data) const;
    bool refreshBackup();
    Result<Saved> replaceWith(plist::Dictionary settings);

    FileManager& m_files;
    const MacPath m_main;
    const MacPath m_backup;
    const MacPath m_temporary;
    std::optional<Error> m_mainUnreadable; ///< why the last load could not read a main file that is there
    bool m_backupIsTheGoodOne = false;     ///< the last load found the main file bad, and it still is

    mutable std::mutex m_parsedLock;
    mutable Parsed m_parsed; ///< of the main file; no content before the first
};

} // namespace tavrik
