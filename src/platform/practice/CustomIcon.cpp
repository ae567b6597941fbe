#include "platform/practice/CustomIcon.h"

#include "platform/AtomicFile.h"
#include "platform/practice/AppleDouble.h"
#include "platform/practice/ResourceFork.h"

#include <algorithm>
#include <cerrno>

namespace tavrik::practice {

namespace {

constexpr const char* kIconFile = "Icon\r";
constexpr std::uint32_t kIconType = 0x69636E73; // 'icns'
constexpr std::int16_t kIconID = -16455;

/// In the Finder info, the higher byte of the flags and two of them.
constexpr std::size_t kFlagsByte = 8;
constexpr std::uint8_t kHasCustomIcon = 0x04;
constexpr std::uint8_t kIsInvisible = 0x40;

bool isIcon(const Resource& resource) {
    return resource.type == kIconType && resource.id == kIconID;
}

bool isMissing(const Error& error) {
    return error.code == ENOENT;
}

/// The item itself, links followed, since companions stand beside it and not beside a link to it.
Result<MacPath> itemAt(const FileManager& files, const MacPath& path) {
    auto item = files.resolveLinks(path);
    if (!item)
        return item;
    if (auto attributes = files.attributes(*item); !attributes)
        return attributes.error();
    if (companionOf(*item).empty())
        return Error{path.string() + " cannot have a companion.", EINVAL};
    return item;
}

bool isFolder(const FileManager& files, const MacPath& item) {
    const auto attributes = files.attributes(item);
    return attributes && attributes->type == FileType::folder;
}

/// What the companion holds. A missing one is empty, and so is a damaged one: the Mac ignores it and writes
/// over it.
Result<AppleDouble> readCompanion(const FileManager& files, const MacPath& item) {
    const auto bytes = files.read(companionOf(item));
    if (!bytes)
        return isMissing(bytes.error()) ? Result<AppleDouble>(AppleDouble()) : bytes.error();
    const auto content = decodeAppleDouble(*bytes);
    return content ? *content : AppleDouble();
}

/// A new companion is made without waiting for the disk; one that may hold more than the icon is replaced in
/// one step.
Status writeCompanion(FileManager& files, const MacPath& item, const AppleDouble& content) {
    const MacPath companion = companionOf(item);
    const bool exists = bool(files.attributes(companion, Links::dontFollow));
    if (content.isEmpty())
        return exists ? files.remove(companion) : Status(Done{});
    const Bytes bytes = encodeAppleDouble(content);
    return exists ? writeAtomically(files, companion, bytes) : files.create(companion, bytes);
}

/// Puts an icon, or none when it is empty, into the fork and leaves its other resources as they are. A fork
/// that cannot be read is left alone, since nobody knows what is in it.
Status setIconResource(AppleDouble& companion, ByteView icns) {
    std::vector<Resource> resources;
    if (!companion.resourceFork.empty()) {
        auto present = parseResourceFork(companion.resourceFork);
        if (!present)
            return present.error();
        resources = std::move(*present);
        std::erase_if(resources, isIcon);
    }
    if (!icns.empty())
        resources.push_back({kIconType, kIconID, 0, std::nullopt, icns});
    if (resources.empty()) {
        companion.resourceFork.clear();
        return Done{};
    }
    auto fork = encodeResourceFork(resources);
    if (!fork)
        return fork.error();
    companion.resourceFork = std::move(*fork);
    return Done{};
}

std::optional<Bytes> iconResource(const AppleDouble& companion) {
    const auto resources = parseResourceFork(companion.resourceFork);
    if (!resources)
        return std::nullopt;
    const auto icon = std::ranges::find_if(*resources, isIcon);
    if (icon == resources->end())
        return std::nullopt;
    return Bytes(icon->data.begin(), icon->data.end());
}

Status writeIconFile(FileManager& files, const MacPath& iconFile, ByteView icns) {
    if (!files.attributes(iconFile, Links::dontFollow)) {
        if (auto made = files.create(iconFile, {}); !made)
            return made;
    }
    AppleDouble companion;
    companion.finderInfo[kFlagsByte] = kIsInvisible;
    if (auto set = setIconResource(companion, icns); !set)
        return set;
    return writeCompanion(files, iconFile, companion);
}

Status removeIfThere(FileManager& files, const MacPath& path) {
    if (!files.attributes(path, Links::dontFollow))
        return Done{};
    return files.remove(path);
}

} // namespace

Status writeCustomIcon(FileManager& files, const MacPath& path, ByteView icns) {
    if (icns.empty())
        return Error{"An icon without content cannot be stored.", EINVAL};
    const auto item = itemAt(files, path);
    if (!item)
        return item.error();
    auto companion = readCompanion(files, *item);
    if (!companion)
        return companion.error();

    Status stored = isFolder(files, *item) ? writeIconFile(files, *item / kIconFile, icns)
                                           : setIconResource(*companion, icns);
    if (!stored)
        return stored;
    companion->finderInfo[kFlagsByte] |= kHasCustomIcon;
    return writeCompanion(files, *item, *companion);
}

std::optional<Bytes> readCustomIcon(const FileManager& files, const MacPath& path) {
    const auto item = itemAt(files, path);
    if (!item)
        return std::nullopt;
    const auto companion = readCompanion(files, *item);
    if (!companion || !(companion->finderInfo[kFlagsByte] & kHasCustomIcon))
        return std::nullopt;
    if (!isFolder(files, *item))
        return iconResource(*companion);
    const auto iconCompanion = readCompanion(files, *item / kIconFile);
    return iconCompanion ? iconResource(*iconCompanion) : std::nullopt;
}

Status removeCustomIcon(FileManager& files, const MacPath& path) {
    const auto item = itemAt(files, path);
    if (!item)
        return item.error();
    auto companion = readCompanion(files, *item);
    if (!companion)
        return companion.error();

    companion->finderInfo[kFlagsByte] &= static_cast<std::uint8_t>(~kHasCustomIcon);
    if (!isFolder(files, *item)) {
        if (auto cleared = setIconResource(*companion, {}); !cleared)
            return cleared;
        return writeCompanion(files, *item, *companion);
    }
    // The flag goes first: what is left of the icon without it is ignored.
    if (auto written = writeCompanion(files, *item, *companion); !written)
        return written;
    const MacPath iconFile = *item / kIconFile;
    if (auto removed = removeIfThere(files, companionOf(iconFile)); !removed)
        return removed;
    return removeIfThere(files, iconFile);
}

std::optional<Bytes> readFinderInfo(const FileManager& files, const MacPath& path) {
    const auto item = itemAt(files, path);
    if (!item)
        return std::nullopt;
    const auto companion = readCompanion(files, *item);
    if (!companion || companion->finderInfo == AppleDouble().finderInfo)
        return std::nullopt;
    return companion->finderInfo;
}

Status writeFinderInfo(FileManager& files, const MacPath& path, ByteView info) {
    if (info.size() != kFinderInfoSize)
        return Error{"Finder info is 32 bytes, no more and no less.", ERANGE};
    const auto item = itemAt(files, path);
    if (!item)
        return item.error();
    auto companion = readCompanion(files, *item);
    if (!companion)
        return companion.error();
    companion->finderInfo.assign(info.begin(), info.end());
    return writeCompanion(files, *item, *companion);
}

} // namespace tavrik::practice
