#include "icons/IconMoves.h"

#include "icons/IconCache.h"
#include "icons/IconFiles.h"
#include "platform/FileManager.h"
#include "platform/Log.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <tuple>

namespace tavrik {

namespace {

constexpr std::string_view kTemporaryPrefix = "temp_";
constexpr std::array kThumbnailSizes{ThumbnailSize::x1, ThumbnailSize::x2};

Status removeIfPresent(FileManager& files, const MacPath& path) {
    const Status removed = files.remove(path);
    return removed || removed.error().code == ENOENT ? Status(Done{}) : removed;
}

/// Makes the numbers distinct by moving up those that are not, from the last one down, so that the way is free
/// and the order holds after each step.
Status spread(FileManager& files, IconCache& cache, const MacPath& folder, std::vector<NumberedIcon>& icons) {
    std::vector<int> numbers;
    numbers.reserve(icons.size());
    for (const NumberedIcon& icon : icons)
        numbers.push_back(numbers.empty() ? icon.number : std::max(icon.number, numbers.back() + 1));
    for (std::size_t i = icons.size(); i-- > 0;) {
        if (numbers[i] == icons[i].number)
            continue;
        const MacPath target = folder / iconFileName(numbers[i]);
        if (Status moved = moveIcon(files, cache, icons[i].path, target); !moved)
            return moved;
        icons[i].path = target;
    }
    return Done{};
}

} // namespace

Result<std::vector<NumberedIcon>> numberedIcons(const FileManager& files, const MacPath& folder,
                                                Temporaries temporaries) {
    const auto names = files.list(folder);
    if (!names && names.error().code != ENOENT)
        return names.error();
    std::vector<NumberedIcon> icons;
    if (!names)
        return icons;
    for (const std::string& name : *names) {
        std::string_view plain = name;
        if (temporaries == Temporaries::include && plain.starts_with(kTemporaryPrefix))
            plain.remove_prefix(kTemporaryPrefix.size());
        if (const auto number = iconIndex(plain))
            icons.push_back({*number, folder / name});
    }
    std::ranges::sort(icons, {}, [](const NumberedIcon& icon) {
        const std::string_view path = icon.path.string();
        return std::tuple(icon.number, path.size(), path);
    });
    return icons;
}

Status clearThumbnails(FileManager& files, const MacPath& icon) {
    for (const ThumbnailSize size : kThumbnailSizes) {
        if (Status removed = removeIfPresent(files, thumbnailPath(icon, size)); !removed)
            return removed;
    }
    return Done{};
}

Result<bool> removeIcon(FileManager& files, IconCache& cache, const MacPath& icon) {
    const auto present = files.attributes(icon, Links::dontFollow);
    if (!present && present.error().code != ENOENT)
        return present.error();
    if (present && present->type == FileType::folder)
        return Error{icon.string() + " is a folder", EISDIR};
    if (present) {
        if (const Status removed = removeIfPresent(files, icon); !removed)
            return removed.error();
    }
    cache.remove(icon);
    ignoreFailure(clearThumbnails(files, icon));
    return bool(present);
}

Status moveIcon(FileManager& files, IconCache& cache, const MacPath& from, const MacPath& to) {
    if (!iconIndex(to.name()))
        return Error{to.string() + " is no name of an icon", EINVAL};
    if (Status cleared = clearThumbnails(files, to); !cleared)
        return cleared;
    if (Status moved = files.move(from, to); !moved)
        return moved;
    cache.remove(from);
    cache.remove(to);
    for (const ThumbnailSize size : kThumbnailSizes) {
        const MacPath thumbnail = thumbnailPath(from, size);
        if (!files.move(thumbnail, thumbnailPath(to, size)))
            ignoreFailure(removeIfPresent(files, thumbnail));
    }
    return Done{};
}

Status renumberIcons(FileManager& files, IconCache& cache, const MacPath& folder) {
    auto icons = numberedIcons(files, folder, Temporaries::include);
    if (!icons)
        return icons.error();
    if (Status distinct = spread(files, cache, folder, *icons); !distinct)
        return distinct;

    bool changed = false;
    for (int i = 0; const NumberedIcon& icon : *icons) {
        const MacPath target = folder / iconFileName(i);
        if (icon.path != target) {
            if (Status moved = moveIcon(files, cache, icon.path, target); !moved)
                return moved;
            if (icon.number != i)
                log("  Re-indexed: icon_" + std::to_string(icon.number) + " -> icon_" + std::to_string(i));
            changed = true;
        }
        ++i;
    }
    return changed ? files.flush(folder) : Done{};
}

} // namespace tavrik
