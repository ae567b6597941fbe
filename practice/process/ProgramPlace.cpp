#include "practice/process/ProgramPlace.h"

#include <filesystem>
#include <system_error>

namespace tavrik::practice {

std::optional<HostPath> volumeOfProgram(std::string_view startedBy, const MacPath& program) {
    std::error_code error;
    const std::string absolute = std::filesystem::absolute(startedBy, error).string();
    if (error || !absolute.ends_with(program.string()))
        return std::nullopt;
    const std::string volume = absolute.substr(0, absolute.size() - program.string().size());
    if (volume.empty())
        return std::nullopt;
    return HostPath(volume);
}

} // namespace tavrik::practice
