#include "icons/TransferRecord.h"

#include "icons/IconStore.h"
#include "platform/PathComponent.h"

namespace tavrik {

namespace {

constexpr const char* kApplications = "applications";
constexpr const char* kShown = "shown";
constexpr const char* kMarked = "marked";
constexpr const char* kSelected = "selected";
constexpr const char* kSelectedBehind = "selectedBehind";
constexpr const char* kPath = "path";
constexpr const char* kFileID = "fileID";
constexpr const char* kSize = "size";

plist::Dictionary encode(const RecordedIcon& icon) {
    plist::Dictionary entry{{kPath, icon.path.string()}};
    if (icon.identity) {
        entry.emplace(kFileID, icon.identity->fileID);
        entry.emplace(kSize, icon.identity->size);
    }
    return entry;
}

plist::Array encode(const std::vector<RecordedIcon>& icons) {
    plist::Array list;
    list.reserve(icons.size());
    for (const RecordedIcon& icon : icons)
        list.emplace_back(encode(icon));
    return list;
}

std::optional<std::uint64_t> unsignedAt(const plist::Value& entry, std::string_view key) {
    if (const auto* large = entry.find<std::uint64_t>(key))
        return *large;
    const auto* number = entry.find<std::int64_t>(key);
    return number && *number >= 0 ? std::optional(static_cast<std::uint64_t>(*number)) : std::nullopt;
}

class Decoder {
public:
    Decoder(const IconStore& store, const std::string& bundleID, std::vector<std::string>& remarks)
        : m_store(store),
          m_bundleID(bundleID),
          m_remarks(remarks) {}

    RecordedIcon icon(const plist::Value& entry) const {
        const auto* path = entry.find<std::string>(kPath);
        if (!path || !m_store.ownsPath(MacPath(*path), m_bundleID)) {
            m_remarks.push_back("Ignoring a recorded icon that is not one of " + m_bundleID);
            return {};
        }
        RecordedIcon icon{MacPath(*path), std::nullopt};
        const auto fileID = unsignedAt(entry, kFileID);
        const auto size = unsignedAt(entry, kSize);
        if (fileID && size)
            icon.identity = FileIdentity{*fileID, *size};
        return icon;
    }

    std::vector<RecordedIcon> icons(const plist::Value& application, const char* key) const {
        std::vector<RecordedIcon> found;
        if (const auto* list = application.find<plist::Array>(key)) {
            for (const plist::Value& entry : *list)
                found.push_back(icon(entry));
        }
        return found;
    }

private:
    const IconStore& m_store;
    const std::string& m_bundleID;
    std::vector<std::string>& m_remarks;
};

} // namespace

plist::Dictionary encodeTransferRecords(const TransferRecords& records) {
    plist::Dictionary applications;
    for (const auto& [bundleID, record] : records) {
        plist::Dictionary entry{{kShown, encode(record.shown)}, {kMarked, encode(record.marked)}};
        if (record.selected)
            entry.emplace(kSelected, encode(*record.selected));
        if (record.selectedBehind)
            entry.emplace(kSelectedBehind, *record.selectedBehind);
        applications.emplace(bundleID, std::move(entry));
    }
    return {{kApplications, std::move(applications)}};
}

TransferRecords decodeTransferRecords(const plist::Value& root, const IconStore& store,
                                      std::vector<std::string>& remarks) {
    TransferRecords records;
    const auto* applications = root.find<plist::Dictionary>(kApplications);
    if (!applications) {
        remarks.emplace_back("The record of the icon transfer names no applications");
        return records;
    }
    for (const auto& [bundleID, entry] : *applications) {
        if (!isSafePathComponent(bundleID)) {
            remarks.push_back("Ignoring the record of an application without a usable identifier: " + bundleID);
            continue;
        }
        const Decoder decoder(store, bundleID, remarks);
        TransferRecord record;
        record.shown = decoder.icons(entry, kShown);
        record.marked = decoder.icons(entry, kMarked);
        if (const auto* selected = entry.find(kSelected))
            record.selected = decoder.icon(*selected);
        const auto* behind = entry.find<std::int64_t>(kSelectedBehind);
        if (behind && *behind >= 0)
            record.selectedBehind = *behind;
        records.emplace(bundleID, std::move(record));
    }
    return records;
}

} // namespace tavrik
