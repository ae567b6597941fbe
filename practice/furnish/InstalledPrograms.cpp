#include "practice/furnish/InstalledPrograms.h"

#include "platform/FileDescriptor.h"
#include "platform/FileLock.h"
#include "platform/PosixSystem.h"
#include "platform/practice/Layout.h"
#include "practice/furnish/HostFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
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

/// Whether each place has a program of the size and the date of the source, which installing gives it. Contents
/// would tell the same, but every start of a program waits for this.
bool areCurrent(const HostPath& root, const std::vector<MacPath>& places, const struct stat& source) {
    const timespec changed = modificationTime(source);
    return std::ranges::all_of(places, [&](const MacPath& place) {
        struct stat installed{};
        if (::lstat(hostPlace(root, place).string().c_str(), &installed) != 0)
            return false;
        const timespec date = modificationTime(installed);
        return S_ISREG(installed.st_mode) && (installed.st_mode & S_IXUSR) != 0 &&
               installed.st_size == source.st_size && date.tv_sec == changed.tv_sec &&
               date.tv_nsec == changed.tv_nsec;
    });
}

/// A new program with the source's date.
Status makeProgram(const HostPath& file, const Bytes& content, const struct stat& source) {
    if (Status made = createHostFile(file, content, 0755); !made)
        return made;
    const std::array<timespec, 2> dates{timespec{0, UTIME_OMIT}, modificationTime(source)};
    if (::utimensat(AT_FDCWD, file.string().c_str(), dates.data(), 0) != 0)
        return hostError("date", file, lastError());
    return Done{};
}

/// Gives the program all its names: one file, or several where the host has no second names for a file.
Status install(const HostPath& root, const std::vector<MacPath>& places, const Bytes& content,
               const struct stat& source) {
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
            if (Status made = makeProgram(fresh, content, source); !made)
                return made;
        if (Status renamed = renameHost(fresh, file); !renamed)
            return renamed;
    }
    return Done{};
}

} // namespace

Status installPrograms(const HostPath& root, const Programs& programs, const HostPath& lock) {
    for (const Installation& installation : installationsOf(programs)) {
        struct stat source{};
        if (::stat(installation.source.string().c_str(), &source) != 0)
            return hostError("read", installation.source, lastError());
        if (areCurrent(root, installation.places, source))
            continue;
        const auto turn = FileLock::takeExisting(lock, FileLock::Wait::yes);
        if (!turn)
            return hostError("lock", lock, lastError());
        if (areCurrent(root, installation.places, source)) // made so by another program meanwhile
            continue;
        const Result<Bytes> content = readHostFile(installation.source);
        if (!content)
            return content.error();
        if (Status installed = install(root, installation.places, *content, source); !installed)
            return installed;
    }
    return Done{};
}

} // namespace tavrik::practice
