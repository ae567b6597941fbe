#pragma once

#include "icons/IconWhereabouts.h"
#include "icons/TransferRecord.h"
#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class FileManager;
class IconStore;
class SettingsManager;

/// Brings the icons of applications from their staged to their applied form: the marked ones deleted, the
/// pending ones moved into the permanent folder, all numbered from 0. Names change on the way, so before the
/// first change a record of which file is which (by its number in the file system) goes to
/// "PendingChanges/transfer.plist", and stays until the staged changes that name the old places are gone. After
/// a kill at any moment the record tells where each icon stands.
///
/// Blocks on the disk. One at a time.
class IconTransfer {
public:
    IconTransfer(FileManager& files, SettingsManager& settings, IconStore& store);

    struct Application {
        std::string bundleID;
        /// In the order of its row: the visible permanent icons, then the pending ones.
        std::vector<MacPath> shown;
        std::set<int> marked; ///< numbers of permanent icons to delete
    };

    /// Where each of `shown` stands; nothing for an icon that is lost.
    using Places = std::vector<std::optional<MacPath>>;

    /// Writes the record for all applications of a run. False, with a log line, when that fails: nothing may be
    /// transferred then.
    [[nodiscard]] bool begin(const std::vector<Application>& applications);

    /// Transfers one application of the record. Each step that fails is logged and skipped: its icon stays
    /// where it was, and the numbers keep their gaps when a deletion failed. The answer has a place for each of
    /// `shown`, or is empty when there is no record of the application or its folders cannot be read: nothing
    /// is known to be lost then. Safe to repeat, also by another process after a kill, for as long as the
    /// record stands: what is done is not done again, and the answer is the same. The selected icon in the
    /// settings stays the one that it was before the run, at its present number, until the caller stores
    /// another. `name` is the application's, for the log, where it is known.
    Places run(const std::string& bundleID, const std::string& name = {});

    /// The bundle identifiers of a run that was begun and not ended, by this process or an earlier one.
    std::vector<std::string> interrupted() const;

    /// What such a run took for `shown`, by bundle identifier. None when there is no record, or a damaged one;
    /// an error when there is one and it cannot be read just now.
    Result<std::map<std::string, std::vector<MacPath>>> recorded() const;

    /// Undoes nothing, but leaves the settings right when the staged changes of an interrupted run are given
    /// up: the icons are numbered without gaps, and each application's selected icon is the one that it was
    /// before, at its present number; none when it was deleted. An application whose folders cannot be read is
    /// left as it is. Safe to repeat.
    void abandon();

    /// Removes the record; fine when there is none. To be called when the staged changes are gone.
    void end();

private:
    Status checkFolder() const;
    using Records = std::shared_ptr<const TransferRecords>;

    Result<Records> read() const;
    Records load() const;
    std::optional<IconWhereabouts> look(const std::string& bundleID) const;
    Result<TransferRecord> recordOf(const Application& application, const TransferRecord* interrupted) const;
    void keepSelection(const std::string& bundleID, const TransferRecord& record,
                       const std::optional<FileIdentity>& selected, const IconWhereabouts& now);

    FileManager& m_files;
    SettingsManager& m_settings;
    IconStore& m_store;
    const MacPath m_recordURL;

    /// What was decoded last, without a remark, and of what: a run reads the record for each application.
    mutable Bytes m_decoded;
    mutable Records m_records;
};

} // namespace tavrik
