#include "icons/IconSweep.h"

#include "icons/IconCache.h"
#include "icons/IconFiles.h"
#include "icons/IconMoves.h"
#include "platform/FileManager.h"
#include "platform/Log.h"

#include <cerrno>
#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

namespace {

constexpr std::string_view kUnfinished = ".new";

/// The name of the icon that a file of this name is a thumbnail of.
std::optional<std::string> iconOfThumbnail(const std::string& name) {
    const std::size_t mark = name.find("_thumb");
    if (mark == std::string::npos)
        return std::nullopt;
    std::string icon = name.substr(0, mark) + ".png";
    for (const ThumbnailSize size : {ThumbnailSize::x1, ThumbnailSize::x2}) {
        if (iconIndex(icon) && thumbnailPath(MacPath(icon), size).name() == name)
            return icon;
    }
    return std::nullopt;
}

bool isUnfinished(const std::string& name) {
    if (!name.ends_with(kUnfinished))
        return false;
    const std::string whole = name.substr(0, name.size() - kUnfinished.size());
    return iconIndex(whole) || iconOfThumbnail(whole);
}

void removeLeftover(FileManager& files, const MacPath& path) {
    const auto present = files.attributes(path, Links::dontFollow);
    if (present && present->type != FileType::folder)
        ignoreFailure(files.remove(path));
}

} // namespace

Status removeIconFolder(FileManager& files, IconCache& cache, const MacPath& folder) {
    if (const auto icons = numberedIcons(files, folder)) {
        for (const NumberedIcon& icon : *icons)
            ignoreFailure(removeIcon(files, cache, icon.path));
    }
    const Status removed = files.remove(folder);
    return removed || removed.error().code == ENOENT ? Status(Done{}) : removed;
}

void sweepIconFolder(FileManager& files, IconCache& cache, const MacPath& folder,
                     const std::set<MacPath>& named) {
    const auto names = files.list(folder);
    if (!names)
        return;
    for (const std::string& name : *names) {
        const MacPath path = folder / name;
        if (iconIndex(name) && !named.contains(path)) {
            if (removeIcon(files, cache, path))
                log("🗑️ Deleted pending icon and cleared cache: " + path.string());
        } else if (isUnfinished(name)) {
            removeLeftover(files, path);
        }
    }
    for (const std::string& name : *names) {
        const auto icon = iconOfThumbnail(name);
        if (icon && !files.attributes(folder / *icon, Links::dontFollow))
            removeLeftover(files, folder / name);
    }
    const auto left = files.list(folder);
    if (left && left->empty())
        ignoreFailure(files.remove(folder));
}

} // namespace tavrik
