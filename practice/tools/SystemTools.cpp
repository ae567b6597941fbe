#include "practice/tools/SystemTools.h"

#include "platform/FileLock.h"
#include "platform/practice/Journal.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "practice/tools/ToolFunctions.h"

#include <optional>
#include <string_view>

namespace tavrik::practice {

namespace {

struct Tool {
    std::string_view path;
    ToolAnswer (*run)(const ToolSurroundings&, const Arguments&);
};

constexpr Tool kTools[] = {
    {"/bin/ln", ln},
    {"/usr/bin/chflags", chflags},
    {"/usr/bin/defaults", defaults},
    {"/usr/bin/killall", killall},
    {"/usr/bin/touch", touch},
    {"/usr/bin/xattr", xattr},
};

const Tool* toolAt(const MacPath& path) {
    static constexpr Tool kRegister{{}, lsregister};
    if (path == kLaunchServicesTool)
        return &kRegister;
    for (const Tool& tool : kTools)
        if (path.string() == tool.path)
            return &tool;
    return nullptr;
}

/// The turn of one tool among all of its volume. A volume without state has nothing to take turns for.
std::optional<FileLock> takeTurn(PracticeFileManager& files) {
    if (!files.createFolder(kStateFolder))
        return std::nullopt;
    const auto lock = files.hostPath(kStateFolder / "tools.lock", Links::dontFollow);
    return lock ? FileLock::take(*lock, FileLock::Wait::yes) : std::nullopt;
}

void note(PracticeFileManager& files, Date now, const MacPath& path, const Arguments& arguments) {
    Arguments fields{path.string()};
    fields.insert(fields.end(), arguments.begin(), arguments.end());
    ignoreFailure(appendToJournal(files, kToolJournal, now, fields));
}

} // namespace

std::vector<MacPath> systemTools() {
    std::vector<MacPath> paths{kLaunchServicesTool};
    for (const Tool& tool : kTools)
        paths.emplace_back(tool.path);
    return paths;
}

ToolAnswer runSystemTool(const ToolSurroundings& surroundings, const MacPath& path,
                         const std::vector<std::string>& arguments) {
    const Tool* tool = toolAt(path);
    if (!tool)
        return {.exitStatus = 127, .output = {}, .errors = path.string() + ": command not found\n"};
    PracticeFileManager files(surroundings.root);
    const auto turn = takeTurn(files);
    note(files, surroundings.now, path, arguments);
    return tool->run(surroundings, arguments);
}

} // namespace tavrik::practice
