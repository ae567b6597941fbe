#include "practice/tools/ToolText.h"

#include <system_error>
#include <utility>

namespace tavrik::practice {

std::string reasonOf(const Error& error) {
    return error.code == 0 ? error.description : std::generic_category().message(error.code);
}

void complain(ToolAnswer& answer, std::string_view tool, std::string_view subject, std::string_view reason) {
    answer.errors.append(tool).append(": ").append(subject).append(": ").append(reason).append("\n");
    answer.exitStatus = 1;
}

ToolAnswer usage(std::string text) {
    return {.exitStatus = 1, .output = {}, .errors = std::move(text)};
}

} // namespace tavrik::practice
