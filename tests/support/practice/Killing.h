#pragma once

#include "platform/practice/Layout.h"
#include "support/practice/VirtualMac.h"

#include <cerrno>
#include <set>
#include <thread>

namespace tavrik::test {

/// Runs the work and kills it before its change of that number, counted from 1: a file operation that changes
/// something, or the run of a tool. An exception stands for the kill: nothing in the program catches it, and
/// what runs while the stack is unwound has no effect, as it would have none. False when the work was over
/// before. The program is to be started anew afterwards.
template<typename Work>
[[nodiscard]] bool isKilledBefore(VirtualMac& on, std::size_t change, Work&& work) {
    struct Killed {};

    const auto thread = std::this_thread::get_id();
    bool isDead = false;
    const auto passes = [&] {
        if (!isDead && std::this_thread::get_id() == thread && --change == 0) {
            isDead = true;
            throw Killed();
        }
        return !isDead;
    };
    on.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
        static const std::set<std::string> kChanges{"write",   "create", "copy",        "move",
                                                    "replace", "remove", "createFolder"};
        // A temporary file is removed by a destructor, which cannot be left by an exception.
        const bool isCleanUp =
            operation.name == "remove" && operation.path.isInside(MacPath(practice::kTemporaryFolder));
        const bool isChange = isDead || (!isCleanUp && kChanges.contains(operation.name));
        return isChange && !passes() ? std::optional(EIO) : std::nullopt;
    });
    on.session.setInterceptor([&](const auto&, const auto&, const auto&) -> std::optional<Result<ToolResult>> {
        return passes() ? std::nullopt : std::optional(Result<ToolResult>(Error{"killed", EIO}));
    });
    try {
        work();
    } catch (const Killed&) {
    }
    on.files.failNothing();
    on.session.setInterceptor({});
    return isDead;
}

} // namespace tavrik::test
