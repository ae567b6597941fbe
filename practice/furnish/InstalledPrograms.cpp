#include "practice/furnish/InstalledPrograms.h"

#include "platform/practice/Layout.h"
#include "practice/furnish/HostFiles.h"
#include "practice/process/FileLock.h"

#include <unistd.h>

#include <algorithm>
#include <vector>

namespace tavrik::practice {

namespace {

/// The places of one program of the build.
struct Installation {
    HostPath source;
    std::vector<MacPath> places;
};

std::vector<Installation> installationsOf(const Programs& programs) {
    std::vector<Installation> all;
    if (!programs.tool.empty()) {
        const MacPath commands("/usr/bin");
        all.push_back({programs.tool,
                       {commands / "touch", commands / "killall", commands / "defaults", commands / "chflags",
                        commands / "xattr", MacPath("/bin/ln"), kLaunchServicesTool}});
    }
    if (!programs.dock.empty())
        all.push_back({programs.dock, {kDockProgram}});
    return all;
}

HostPath hostPlace(const HostPath& root, const MacPath& place) {
    return root / place.string();
}

bool areCurrent(const HostPath& root, const std::vector<MacPath>& places, const Bytes& content) {
    return std::ranges::all_of(places, [&](const MacPath& place) {
        const HostPath file = hostPlace(root, place);
        if (::access(file.string().c_str(), X_OK) != 0)
            return false;
        const Result<Bytes> installed = readHostFile(file);
        return installed && *installed == content;
    });
}

/// Gives the program all its names: one file, or several where the host has no second names for a file.
Status install(const HostPath& root, const std::vector<MacPath>& places, const Bytes& content) {
    const HostPath first = hostPlace(root, places.front());
    for (const MacPath& place : places) {
        const HostPath file = hostPlace(root, place);
        const HostPath fresh(file.string() + ".new");
        if (Status folder = createHostFolder(file.parent()); !folder)
            return folder;
        if (Status rest = removeHostTree(fresh); !rest)
            return rest;
        const bool isLinked = file != first && ::link(first.string().c_str(), fresh.string().c_str()) == 0;
        if (!isLinked)
            if (Status made = createHostFile(fresh, content, 0755); !made)
                return made;
        if (Status renamed = renameHost(fresh, file); !renamed)
            return renamed;
    }
    return Done{};
}

} // namespace

Status installPrograms(const HostPath& root, const Programs& programs, const HostPath& lock) {
    for (const Installation& installation : installationsOf(programs)) {
        const Result<Bytes> content = readHostFile(installation.source);
        if (!content)
            return content.error();
        if (areCurrent(root, installation.places, *content))
            continue;
        const auto turn = FileLock::takeExisting(lock, FileLock::Wait::yes);
        if (!turn)
            return hostError("lock", lock, lastError());
        if (areCurrent(root, installation.places, *content)) // made so by another program meanwhile
            continue;
        if (Status installed = install(root, installation.places, *content); !installed)
            return installed;
    }
    return Done{};
}

} // namespace tavrik::practice
