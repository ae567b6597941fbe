#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "practice/tools/PathList.h"
#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

#include <algorithm>

namespace tavrik::practice {

namespace {

enum class Hidden { no, yes };

Status setHidden(FileManager& files, const MacPath& path, Hidden hidden) {
    return changePathList(files, kHiddenPaths, [&](std::vector<MacPath>& paths) {
        // The flag of something removed went with it.
        const auto gone = std::erase_if(paths, [&](const MacPath& other) { return !files.exists(other); });
        const bool isHidden = std::ranges::find(paths, path) != paths.end();
        if (isHidden == (hidden == Hidden::yes))
            return gone > 0;
        if (hidden == Hidden::yes)
            paths.push_back(path);
        else
            std::erase(paths, path);
        return true;
    });
}

} // namespace

ToolAnswer chflags(const ToolSurroundings& surroundings, const Arguments& arguments) {
    if (arguments.size() < 2 || arguments.front().starts_with("-"))
        return usage("usage: chflags [-fhvx] [-R [-H | -L | -P]] flags file ...\n");
    const std::string& flag = arguments.front();
    if (flag != "hidden" && flag != "nohidden")
        return usage("chflags: invalid flag: " + flag + "\n");

    PracticeFileManager files(surroundings.root);
    ToolAnswer answer;
    for (auto argument = arguments.begin() + 1; argument != arguments.end(); ++argument) {
        const MacPath path(*argument);
        const auto there = files.attributes(path);
        const Status set =
            there ? setHidden(files, path, flag == "hidden" ? Hidden::yes : Hidden::no) : Status(there.error());
        if (!set)
            complain(answer, "chflags", *argument, reasonOf(set.error()));
    }
    return answer;
}

} // namespace tavrik::practice
