#include "maintenance/InstalledBundles.h"

#include "platform/AppFolders.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PropertyList.h"
#include "platform/Volume.h"

#include <optional>
#include <vector>

namespace tavrik {

namespace {

constexpr std::size_t kLargestInfoPlist = 16u << 20;

std::optional<std::string> identifierOf(const FileManager& files, const MacPath& bundle) {
    for (const char* place : {"Contents/Info.plist", "WrappedBundle/Info.plist", "Info.plist"}) {
        const auto data = files.read(bundle / place, kLargestInfoPlist);
        const auto info = data ? plist::parse(*data) : Result<plist::Value>(data.error());
        const auto* identifier = info ? info->find<std::string>("CFBundleIdentifier") : nullptr;
        if (identifier)
            return *identifier;
    }
    return std::nullopt;
}

} // namespace

std::set<std::string> installedBundles(const Mac& mac) {
    std::set<std::string> identifiers;
    for (const MacPath& folder : standardAppFolders(mac.volume.home())) {
        const auto names = mac.files.list(folder);
        for (const std::string& name : names ? *names : std::vector<std::string>()) {
            if (MacPath(name).extension() != "app")
                continue;
            if (auto identifier = identifierOf(mac.files, folder / name))
                identifiers.insert(std::move(*identifier));
        }
    }
    return identifiers;
}

} // namespace tavrik
