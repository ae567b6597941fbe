#include "platform/practice/PracticeBookmarks.h"

#include "platform/BookmarkPath.h"
#include "platform/FileManager.h"
#include "platform/FileURL.h"
#include "platform/practice/Layout.h"

#include <cerrno>
#include <string_view>

namespace tavrik::practice {

namespace {

/// The practice Mac's one volume.
constexpr const char* kVolumeUUID = "5B0E2F5C-7C5D-4B3E-9A61-2D8F0C94E713";
constexpr std::uint64_t kVolumeSize = 494'384'795'648;
constexpr Date kVolumeCreated{694'224'000};

std::vector<std::string> componentsOf(const MacPath& path) {
    std::vector<std::string> components;
    std::string_view rest = path.string();
    while (!rest.empty()) {
        rest.remove_prefix(1);
        const std::string_view component = rest.substr(0, rest.find('/'));
        if (!component.empty())
            components.emplace_back(component);
        rest.remove_prefix(component.size());
    }
    return components;
}

} // namespace

Result<BookmarkTarget> describeForBookmark(const FileManager& files, const MacPath& path) {
    const auto folder = files.resolveLinks(path.parent());
    if (!folder)
        return folder.error();
    const MacPath target = *folder / path.name();

    BookmarkTarget description;
    description.components = componentsOf(target);
    if (description.components.empty())
        return Error{"The volume itself cannot be bookmarked.", EINVAL};
    description.volumeUUID = kVolumeUUID;
    description.volumeSize = kVolumeSize;
    description.volumeCreated = kVolumeCreated;

    MacPath walked("/");
    for (const std::string& component : description.components) {
        walked = walked / component;
        const auto attributes = files.attributes(walked, Links::dontFollow);
        if (!attributes)
            return attributes.error();
        description.fileIDs.push_back(attributes->fileID);
        description.created = attributes->modified;
        description.isFolder = attributes->type == FileType::folder;
    }
    if (target != kHome && target.isInside(kHome))
        description.homeUser = kHome.name();
    return description;
}

PracticeBookmarks::PracticeBookmarks(const FileManager& files) : m_files(files) {}

Result<Bytes> PracticeBookmarks::make(const MacPath& target) const {
    const auto description = describeForBookmark(m_files, target);
    if (!description)
        return description.error();
    return encodeBookmark(*description);
}

Result<MacPath> PracticeBookmarks::resolve(ByteView bookmark) const {
    auto path = pathInBookmark(bookmark);
    if (!path)
        return path;
    if (auto there = m_files.attributes(*path, Links::dontFollow); !there)
        return there.error();
    return path;
}

Result<MacPath> PracticeBookmarks::recordedPath(ByteView bookmark) const {
    return pathInBookmark(bookmark);
}

std::string PracticeBookmarks::fileURL(const MacPath& path) const {
    return fileURLOf(path, m_files);
}

} // namespace tavrik::practice
