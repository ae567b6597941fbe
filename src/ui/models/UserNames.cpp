#include "ui/models/UserNames.h"

#include "app/Managers.h"
#include "fonts/PlainNames.h"
#include "platform/Mac.h"
#include "system/LaunchpadLayout.h"
#include "ui/models/LaunchpadCopy.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <tuple>

namespace tavrik {

namespace {

/// A folder's title may have lost its capitals to a style; its backup has them.
std::string folderName(const std::string& plain, const std::optional<FolderBackup>& backup) {
    return backup && backup->lastGood && isSameIgnoringCase(*backup->lastGood, plain) ? *backup->lastGood
                                                                                      : plain;
}

std::vector<std::string> readFolders(Managers& with) {
    auto copy = openLaunchpadCopy(with.applyServices.mac, with.launchpadDatabase);
    const auto layout = copy ? readLaunchpadLayout(*copy) : std::nullopt;
    std::vector<std::string> names;
    for (const auto& page : layout ? layout->pages : decltype(layout->pages)()) {
        for (const LaunchpadLayout::Item& item : page) {
            const auto* const folder = std::get_if<LaunchpadLayout::Folder>(&item);
            if (folder && !folder->title.empty())
                names.push_back(folderName(with.fonts.fontReplacer().convertToNormal(folder->title),
                                           with.settings.getFolderBackup(folder->rowID)));
        }
    }
    return names;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool looksGood(const std::string& name) {
    return name.size() >= 4 && name.size() <= 10 && std::ranges::all_of(name, isLetter);
}

/// Those that look good, the best ones first.
std::vector<std::string> candidates(std::vector<std::string> names) {
    constexpr int kBestLength = 6;
    std::erase_if(names, [](const std::string& name) { return !looksGood(name); });
    std::ranges::sort(names, {}, [](const std::string& name) {
        return std::tuple(std::abs(static_cast<int>(name.size()) - kBestLength), name);
    });
    return names;
}

} // namespace

UserNames readUserNames(Managers& with) {
    UserNames names{.apps = {}, .folders = readFolders(with)};
    for (const ApplicationInfo& app : with.apps.loadApplications())
        names.apps.push_back(app.path.empty() ? with.fonts.fontReplacer().convertToNormal(app.name)
                                              : bundleName(app.path));
    return names;
}

std::vector<std::string> sampleNames(const UserNames& names, std::size_t count) {
    const std::vector<std::string> folders = candidates(names.folders);
    const std::size_t apps = folders.empty() ? count : count - 1;
    std::vector<std::string> samples;
    std::set<char> initials;
    for (const std::string& name : candidates(names.apps)) {
        if (samples.size() < apps && initials.insert(name.front()).second)
            samples.push_back(name);
    }
    std::ranges::sort(samples);
    if (!folders.empty() && count > 0)
        samples.push_back(folders.front());
    return samples;
}

} // namespace tavrik
