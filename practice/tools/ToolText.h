#pragma once

#include "platform/Result.h"
#include "practice/tools/SystemTools.h"

#include <string>
#include <string_view>

namespace tavrik::practice {

/// "No such file or directory" for the code of a failed file operation.
std::string reasonOf(const Error& error);

/// Adds "<tool>: <subject>: <reason>" to the errors and makes the exit status 1.
void complain(ToolAnswer& answer, std::string_view tool, std::string_view subject, std::string_view reason);

/// The answer to a call that the tool does not understand: exit status 1.
ToolAnswer usage(std::string text);

} // namespace tavrik::practice
