#include "practice/tools/PathList.h"

#include "platform/practice/PropertyListFile.h"

#include <cerrno>

namespace tavrik::practice {

Status changePathList(FileManager& files, const MacPath& list,
                      const std::function<bool(std::vector<MacPath>&)>& change) {
    const auto content = readPropertyList(files, list);
    if (!content)
        return content.error();
    std::vector<MacPath> paths;
    if (*content) {
        const auto* entries = (*content)->as<plist::Array>();
        if (!entries)
            return Error{list.string() + " is no list.", EINVAL};
        for (const plist::Value& entry : *entries)
            if (const auto* text = entry.as<std::string>())
                paths.emplace_back(*text);
    }

    if (!change(paths))
        return Done{};

    plist::Array entries;
    for (const MacPath& path : paths)
        entries.emplace_back(path.string());
    return writePropertyList(files, list, std::move(entries));
}

} // namespace tavrik::practice
