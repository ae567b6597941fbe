#include "backups/BackupArchive.h"

#include "platform/Log.h"
#include "platform/PropertyList.h"
#include "platform/PropertyListBinary.h"
#include "platform/Result.h"

#include <utility>

namespace tavrik {

namespace {

std::nullopt_t failed(const char* what, const std::string& description) {
    log(std::string("Failed to ") + what + " archive: " + description);
    return std::nullopt;
}

} // namespace

std::optional<Bytes> createArchive(ArchiveMembers members) {
    plist::Dictionary dictionary;
    for (auto& [name, content] : members)
        dictionary.emplace(name, std::move(content));
    Result<Bytes> archive = plist::toBinary(std::move(dictionary), BackupContainer::kOverhead);
    if (!archive)
        return failed("create", archive.error().description);
    if (archive->size() > kLargestArchive)
        return failed("create", "it is too large");
    return std::move(*archive);
}

std::optional<ArchiveMembers> extractArchive(ByteView archive) {
    Result<plist::Value> list = plist::parse(archive, {.bytes = kLargestArchive});
    if (!list)
        return failed("extract", list.error().description);
    auto* dictionary = list->as<plist::Dictionary>();
    if (!dictionary)
        return failed("extract", "it is no dictionary");
    ArchiveMembers members;
    for (auto& [name, value] : *dictionary) {
        auto* content = value.as<Bytes>();
        if (!content)
            return failed("extract", "\"" + name + "\" holds no data");
        members.emplace(name, std::move(*content));
    }
    return members;
}

} // namespace tavrik
