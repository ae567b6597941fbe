#include "platform/practice/PracticeFileManager.h"
#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

namespace tavrik::practice {

ToolAnswer ln(const ToolSurroundings& surroundings, const Arguments& arguments) {
    if (arguments.size() != 3 || arguments[0] != "-s")
        return usage("usage: ln [-s [-F] | -L | -P] [-f | -i] [-hnv] source_file [target_file]\n"
                     "       ln [-s [-F] | -L | -P] [-f | -i] [-hnv] source_file ... target_dir\n");
    PracticeFileManager files(surroundings.root);
    const std::string& target = arguments[1];
    MacPath link(arguments[2]);
    if (const auto there = files.attributes(link); there && there->type == FileType::folder)
        link = link / MacPath(target).name();

    ToolAnswer answer;
    if (const Status made = files.createLink(link, target); !made)
        complain(answer, "ln", link.string(), reasonOf(made.error()));
    return answer;
}

} // namespace tavrik::practice
