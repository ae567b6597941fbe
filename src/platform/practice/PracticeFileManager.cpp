#include "platform/practice/PracticeFileManager.h"

#include "platform/practice/AppleDouble.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"

#include <unistd.h>

#include <algorithm>
#include <optional>

namespace tavrik::practice {

namespace {

/// The companion when there is one.
std::optional<MacPath> existingCompanion(const PosixFileManager& files, const MacPath& path) {
    MacPath companion = companionOf(path);
    if (companion.empty() || !files.attributes(companion, Links::dontFollow))
        return std::nullopt;
    return companion;
}

} // namespace

PracticeFileManager::PracticeFileManager(const HostPath& root)
    : PosixFileManager(root),
      m_refusedPaths(root / kRefusedPaths.string().substr(1)) {}

Result<std::vector<std::string>> PracticeFileManager::list(const MacPath& folder) const {
    auto names = PosixFileManager::list(folder);
    if (!names)
        return names;
    std::vector<std::string> shown;
    shown.reserve(names->size());
    for (const std::string& name : *names) {
        const bool isCompanion = name.starts_with(kCompanionPrefix) &&
                                 std::ranges::binary_search(*names, name.substr(kCompanionPrefix.size()));
        if (!isCompanion)
            shown.push_back(name);
    }
    return shown;
}

Status PracticeFileManager::copy(const MacPath& from, const MacPath& to) {
    if (auto copied = PosixFileManager::copy(from, to); !copied)
        return copied;
    if (auto dropped = dropCompanion(to); !dropped)
        return undoCopy(to, dropped);
    if (const auto companion = existingCompanion(*this, from); companion && !companionOf(to).empty()) {
        if (auto copied = PosixFileManager::copy(*companion, companionOf(to)); !copied)
            return undoCopy(to, copied);
    }
    return Done{};
}

Status PracticeFileManager::move(const MacPath& from, const MacPath& to) {
    if (auto moved = PosixFileManager::move(from, to); !moved)
        return moved;
    if (auto taken = takeCompanion(from, to); !taken) {
        ignoreFailure(PosixFileManager::move(to, from));
        return taken;
    }
    return Done{};
}

Status PracticeFileManager::replace(const MacPath& original, const MacPath& replacement) {
    if (auto replaced = PosixFileManager::replace(original, replacement); !replaced)
        return replaced;
    // The content is in its place and cannot go back in one step, so its companion no longer decides.
    ignoreFailure(takeCompanion(replacement, original));
    return Done{};
}

Status PracticeFileManager::remove(const MacPath& path) {
    // The companion goes first: a kill in between must not leave one without its partner, which listings show.
    if (attributes(path, Links::dontFollow)) {
        if (auto dropped = dropCompanion(path); !dropped)
            return dropped;
    }
    return PosixFileManager::remove(path);
}

std::error_code PracticeFileManager::refusalAt(const MacPath& path) const {
    // Asked before each operation: without the list it costs one call.
    if (::access(m_refusedPaths.string().c_str(), F_OK) != 0 || path == kRefusedPaths)
        return {};
    const auto listed = readPropertyList(*this, kRefusedPaths);
    const auto* refused = listed && *listed ? (*listed)->as<plist::Array>() : nullptr;
    if (!refused)
        return {};
    const bool isRefused = std::ranges::any_of(*refused, [&](const plist::Value& place) {
        const auto* const prefix = place.as<std::string>();
        return prefix && (path.string() + "/").starts_with(*prefix + "/");
    });
    return isRefused ? std::make_error_code(std::errc::operation_not_permitted) : std::error_code();
}

Status PracticeFileManager::dropCompanion(const MacPath& path) {
    const auto companion = existingCompanion(*this, path);
    return companion ? PosixFileManager::remove(*companion) : Status(Done{});
}

Status PracticeFileManager::takeCompanion(const MacPath& from, const MacPath& to) {
    if (auto dropped = dropCompanion(to); !dropped)
        return dropped;
    const auto companion = existingCompanion(*this, from);
    if (!companion || companionOf(to).empty())
        return Done{};
    return PosixFileManager::move(*companion, companionOf(to));
}

Status PracticeFileManager::undoCopy(const MacPath& copy, const Status& reason) {
    ignoreFailure(PosixFileManager::remove(copy));
    return reason;
}

} // namespace tavrik::practice
