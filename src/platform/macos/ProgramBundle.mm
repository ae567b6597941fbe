#include "platform/macos/ProgramBundle.h"

#include "platform/macos/FoundationText.h"

#include <mach-o/dyld.h>
#include <sys/syslimits.h>

#include <array>
#include <cstdlib>
#include <vector>

namespace tavrik::macos {

namespace {

/// Of the running program, with every link followed.
MacPath programPath() {
    std::uint32_t size = PATH_MAX;
    std::vector<char> path(size);
    if (_NSGetExecutablePath(path.data(), &size) != 0) {
        path.resize(size);
        if (_NSGetExecutablePath(path.data(), &size) != 0)
            return MacPath();
    }
    std::array<char, PATH_MAX> followed{};
    return MacPath(::realpath(path.data(), followed.data()) ? followed.data() : path.data());
}

} // namespace

ProgramBundle findProgramBundle() {
    @autoreleasepool {
        const MacPath program = programPath();
        const MacPath contents = program.parent().parent();
        NSURL* const url = program.parent().name() == "MacOS" && contents.name() == "Contents"
                               ? toNSURL(contents.parent())
                               : nil;
        NSBundle* const bundle = url ? [NSBundle bundleWithURL:url] : nil;
        if (!bundle.bundleIdentifier)
            return {.identifier = {}, .resources = program.parent(), .plugins = {}};
        return {.identifier = toString(bundle.bundleIdentifier),
                .resources = contents / "Resources",
                .plugins = contents / "PlugIns"};
    }
}

} // namespace tavrik::macos
