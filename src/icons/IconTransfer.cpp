#include "icons/IconTransfer.h"

#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "icons/IconWhereabouts.h"
#include "model/SettingsManager.h"
#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/PathComponent.h"
#include "platform/PathRules.h"
#include "platform/PlainFolders.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tavrik {

namespace {

constexpr std::size_t kLargestRecord = 64u << 20; // bytes

/// Only the file that was marked: the one at its place that has its identity and is not shown.
bool isCertain(const RecordedIcon& marked, const TransferRecord& record, const IconWhereabouts& before) {
    return marked.identity && before.identity(marked.path) == marked.identity &&
           std::ranges::none_of(record.shown,
                                [&](const RecordedIcon& icon) { return icon.identity == marked.identity; });
}

std::optional<FileIdentity> selectedIn(const TransferRecord& record, const IconWhereabouts& now) {
    return record.selected ? now.recognize(*record.selected, record) : std::nullopt;
}

} // namespace

IconTransfer::IconTransfer(FileManager& files, SettingsManager& settings, IconStore& store)
    : m_files(files),
      m_settings(settings),
      m_store(store),
      m_recordURL(store.pendingIconsBaseURL().parent() / "transfer.plist") {}

bool IconTransfer::begin(const std::vector<Application>& applications) {
    const Status saved = [&]() -> Status {
        const auto interrupted = read();
        if (!interrupted)
            return interrupted.error();
        TransferRecords records;
        for (const Application& application : applications) {
            const auto earlier = (*interrupted)->find(application.bundleID);
            auto record = recordOf(application, earlier == (*interrupted)->end() ? nullptr : &earlier->second);
            if (!record)
                return record.error();
            records.emplace(application.bundleID, std::move(*record));
        }
        const auto data = plist::serialize(encodeTransferRecords(records), plist::Format::binary);
        if (!data)
            return data.error();
        const MacPath folder = m_recordURL.parent();
        if (Status created = createPlainFolder(m_files, folder.parent(), folder); !created)
            return created;
        return writeAtomically(m_files, m_recordURL, *data);
    }();
    if (!saved)
        log("Failed to save the record of the icon transfer: " + saved.error().description);
    return bool(saved);
}

Status IconTransfer::checkFolder() const {
    const MacPath folder = m_recordURL.parent();
    return checkPlainFolders(m_files, folder.parent(), folder);
}

/// An icon in use is the one from before the first run that was not ended: after that one the number in the
/// settings may name another file.
Result<TransferRecord> IconTransfer::recordOf(const Application& application,
                                              const TransferRecord* interrupted) const {
    const std::string& bundleID = application.bundleID;
    if (!isSafePathComponent(bundleID))
        return Error{"\"" + bundleID + "\" cannot name a folder", EINVAL};
    const auto present = IconWhereabouts::look(m_files, m_store, bundleID);
    if (!present)
        return present.error();
    const auto recorded = [&](const MacPath& path) { return RecordedIcon{path, present->identity(path)}; };
    const MacPath permanent = m_store.iconCacheURL() / bundleID;

    TransferRecord record;
    for (const MacPath& path : application.shown)
        record.shown.push_back(recorded(path));
    for (const int number : application.marked)
        record.marked.push_back(recorded(permanent / iconFileName(number)));
    if (interrupted) {
        record.selected = interrupted->selected;
        record.selectedBehind = interrupted->selectedBehind;
    } else if (const auto selected = m_settings.getSelectedIcon(bundleID)) {
        const auto count = present->countIn(permanent);
        const MacPath path = permanent / ("icon_" + std::to_string(*selected) + ".png");
        if (present->identity(path))
            record.selected = recorded(path);
        else if (*selected >= count)
            record.selectedBehind = *selected - count;
    }
    return record;
}

/// Never null.
Result<IconTransfer::Records> IconTransfer::read() const {
    const Records none = std::make_shared<const TransferRecords>();
    auto data = checkFolder() ? m_files.read(m_recordURL, kLargestRecord) : Error{{}, ENOENT};
    if (!data && data.error().code == ENOENT)
        return none;
    if (data && m_records && *data == m_decoded)
        return m_records;
    const auto root = data ? plist::parse(*data) : data.error();
    if (!root) {
        log("Failed to read the record of the icon transfer: " + root.error().description);
        return data ? none : Result<Records>(data.error());
    }
    std::vector<std::string> remarks;
    auto records = std::make_shared<const TransferRecords>(decodeTransferRecords(*root, m_store, remarks));
    for (const std::string& remark : remarks)
        log(remark);
    if (remarks.empty()) {
        m_decoded = std::move(*data);
        m_records = records;
    }
    return Records(std::move(records));
}

IconTransfer::Records IconTransfer::load() const {
    auto records = read();
    return records ? std::move(*records) : std::make_shared<const TransferRecords>();
}

IconTransfer::Places IconTransfer::run(const std::string& bundleID, const std::string& name) {
    const Records records = load();
    const auto entry = records->find(bundleID);
    if (entry == records->end())
        return {};
    const TransferRecord& record = entry->second;
    const auto before = look(bundleID);
    if (!before)
        return {};
    std::vector<std::optional<FileIdentity>> shown;
    shown.reserve(record.shown.size());
    for (const RecordedIcon& icon : record.shown)
        shown.push_back(before->recognize(icon, record));
    const auto selected = selectedIn(record, *before);

    // The marked ones go.
    bool allDeleted = true;
    if (!record.marked.empty())
        log("  Deleting " + std::to_string(record.marked.size()) + " marked icons for " +
            (name.empty() ? bundleID : name));
    for (const RecordedIcon& marked : record.marked) {
        const auto number = iconIndex(marked.path.name());
        if (number && !isPendingIconPath(marked.path) && isCertain(marked, record, *before))
            allDeleted = m_store.deletePermanentIcon(bundleID, *number) && allDeleted;
    }

    if (!record.marked.empty())
        log("  Permanent icons after cleanup: " + std::to_string(m_store.listIcons(bundleID).size()));

    // The pending ones come behind the others.
    for (const auto& identity : shown) {
        const auto place = before->find(identity);
        if (place && isPendingIconPath(*place))
            ignoreFailure(m_store.transferPendingIcon(*place, bundleID).has_value());
    }

    // A gap keeps the numbers of those that should have gone.
    if (allDeleted)
        m_store.renumber(bundleID);
    ignoreFailure(m_files.flush(m_store.iconCacheURL() / bundleID));

    const auto after = look(bundleID);
    if (!after)
        return {};
    keepSelection(bundleID, record, selected, *after);
    Places places;
    places.reserve(shown.size());
    for (const auto& identity : shown)
        places.push_back(after->find(identity));
    return places;
}

std::optional<IconWhereabouts> IconTransfer::look(const std::string& bundleID) const {
    auto present = IconWhereabouts::look(m_files, m_store, bundleID);
    if (present)
        return std::move(*present);
    log("Failed to look at the icons of " + bundleID + ": " + present.error().description);
    return std::nullopt;
}

std::vector<std::string> IconTransfer::interrupted() const {
    std::vector<std::string> bundleIDs;
    const Records records = load();
    for (const auto& [bundleID, record] : *records)
        bundleIDs.push_back(bundleID);
    return bundleIDs;
}

Result<std::map<std::string, std::vector<MacPath>>> IconTransfer::recorded() const {
    const auto records = read();
    if (!records)
        return records.error();
    std::map<std::string, std::vector<MacPath>> shown;
    for (const auto& [bundleID, record] : **records) {
        std::vector<MacPath>& paths = shown[bundleID];
        for (const RecordedIcon& icon : record.shown)
            paths.push_back(icon.path);
    }
    return shown;
}

void IconTransfer::abandon() {
    const Records records = load();
    for (const auto& [bundleID, record] : *records) {
        const auto before = look(bundleID);
        if (!before)
            continue;
        const auto selected = selectedIn(record, *before);
        m_store.renumber(bundleID);
        if (const auto after = look(bundleID))
            keepSelection(bundleID, record, selected, *after);
    }
}

void IconTransfer::keepSelection(const std::string& bundleID, const TransferRecord& record,
                                 const std::optional<FileIdentity>& selected, const IconWhereabouts& now) {
    std::optional<std::int64_t> number;
    if (const auto place = now.find(selected))
        number = iconIndex(place->name());
    else if (record.selectedBehind)
        number = now.countIn(m_store.iconCacheURL() / bundleID) + *record.selectedBehind;
    if (number != m_settings.getSelectedIcon(bundleID))
        m_settings.setSelectedIcon(bundleID, number);
}

void IconTransfer::end() {
    if (!checkFolder())
        return;
    const Status removed = m_files.remove(m_recordURL);
    if (!removed && removed.error().code != ENOENT)
        log("Failed to remove the record of the icon transfer: " + removed.error().description);
}

} // namespace tavrik
