#include "platform/practice/PracticeFileManager.h"
#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

namespace tavrik::practice {

ToolAnswer touch(const ToolSurroundings& surroundings, const Arguments& arguments) {
    if (arguments.empty() || arguments.front().starts_with("-"))
        return usage("usage: touch [-A [-][[hh]mm]SS] [-achm] [-r file] [-t [[CC]YY]MMDDhhmm[.SS]]\n"
                     "       [-d YYYY-MM-DDThh:mm:SS[.frac][tz]] file ...\n");
    PracticeFileManager files(surroundings.root);
    ToolAnswer answer;
    for (const std::string& argument : arguments) {
        const MacPath path(argument);
        const bool isThere = files.exists(path);
        const Status made = isThere ? Status(Done{}) : files.create(path, {});
        if (const Status touched = made ? files.setModified(path, surroundings.now) : made; !touched)
            complain(answer, "touch", argument, reasonOf(touched.error()));
    }
    return answer;
}

} // namespace tavrik::practice
