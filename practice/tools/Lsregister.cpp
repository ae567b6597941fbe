#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "practice/tools/PathList.h"
#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

#include <algorithm>
#include <optional>

namespace tavrik::practice {

namespace {

enum class Action { add, remove };

bool isBundle(const FileManager& files, const MacPath& path) {
    return files.exists(path / "Contents/Info.plist") || files.exists(path / "WrappedBundle/Info.plist");
}

Status registerBundle(FileManager& files, const MacPath& path) {
    if (!isBundle(files, path))
        return Error{"failed to scan " + path.string() + ": error -10811 from spotlight"};
    return changePathList(files, kRegisteredBundles, [&](std::vector<MacPath>& paths) {
        if (std::ranges::find(paths, path) != paths.end())
            return false;
        paths.push_back(path);
        return true;
    });
}

Status unregisterBundle(FileManager& files, const MacPath& path) {
    bool wasRegistered = false;
    Status changed = changePathList(files, kRegisteredBundles, [&](std::vector<MacPath>& paths) {
        wasRegistered = std::erase(paths, path) > 0;
        return wasRegistered;
    });
    if (changed && !wasRegistered)
        return Error{"failed to scan " + path.string() + ": error -10814"};
    return changed;
}

ToolAnswer lsregisterUsage() {
    return usage("lsregister: [OPTIONS] [ <path>... ]\n"
                 "                      [ -apps <domain>[,domain]... ]\n"
                 "                      [ -libs <domain>[,domain]... ]\n"
                 "                      [ -all  <domain>[,domain]... ]\n");
}

} // namespace

ToolAnswer lsregister(const ToolSurroundings& surroundings, const Arguments& arguments) {
    std::optional<Action> action;
    auto argument = arguments.begin();
    for (; argument != arguments.end() && argument->starts_with("-"); ++argument) {
        if (*argument == "-f")
            action = Action::add;
        else if (*argument == "-u")
            action = Action::remove;
        else if (*argument != "-v" && *argument != "-r" && *argument != "-R")
            return lsregisterUsage();
    }
    if (!action || argument == arguments.end())
        return lsregisterUsage();

    PracticeFileManager files(surroundings.root);
    ToolAnswer answer;
    for (; argument != arguments.end(); ++argument) {
        const MacPath path(*argument);
        const Status done = action == Action::add ? registerBundle(files, path) : unregisterBundle(files, path);
        if (!done) {
            answer.errors += kLaunchServicesTool.string() + ": " + done.error().description + "\n";
            answer.exitStatus = 1;
        }
    }
    return answer;
}

} // namespace tavrik::practice
