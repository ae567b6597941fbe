#include "maintenance/WrapperLinks.h"

#include "maintenance/MissingVolume.h"
#include "platform/FileManager.h"
#include "platform/PathRules.h"
#include "platform/PropertyList.h"
#include "system/Trimmed.h"

#include <QString>

#include <algorithm>
#include <set>

namespace tavrik {

namespace {

bool counts(const std::string& name) {
    return name != "Icon\r" && !name.starts_with('.');
}

std::set<std::string> entriesOf(const FileManager& files, const MacPath& folder) {
    const auto names = files.list(folder);
    std::set<std::string> entries;
    if (names)
        std::ranges::copy_if(*names, std::inserter(entries, entries.end()), counts);
    return entries;
}

bool isSameIdentifier(const std::string& one, const std::string& other) {
    return QString::fromStdString(one).compare(QString::fromStdString(other), Qt::CaseInsensitive) == 0;
}

} // namespace

std::string bundleIdentifierOf(const FileManager& files, const MacPath& bundle) {
    const auto content = files.read(bundle / "Contents/Info.plist");
    const auto info = content ? plist::parse(*content) : Result<plist::Value>(content.error());
    const auto* identifier = info ? info->find<std::string>("CFBundleIdentifier") : nullptr;
    return identifier ? trimmed(*identifier) : std::string();
}

WrapperLinks linksOf(const FileManager& files, const MacPath& wrapper, const std::string& bundleID) {
    const auto present = entriesOf(files, wrapper);
    for (const std::string& name : present) {
        const auto attributes = files.attributes(wrapper / name, Links::dontFollow);
        if (attributes && attributes->type != FileType::symbolicLink)
            return WrapperLinks::foreign;
    }
    const auto target = files.readLink(wrapper / "Contents");
    if (!target)
        return WrapperLinks::incomplete;
    if (isOnMissingVolume(files, MacPath(*target)))
        return WrapperLinks::sound;
    if (!files.exists(wrapper / "Contents") || isTrashPath(MacPath(*target)))
        return WrapperLinks::nowhere;
    const std::string identifier = bundleIdentifierOf(files, wrapper);
    if (!identifier.empty() && !bundleID.empty() && !isSameIdentifier(identifier, bundleID))
        return WrapperLinks::elsewhere;

    const MacPath application = MacPath(*target).parent();
    const auto wanted = entriesOf(files, application);
    const bool isComplete = std::ranges::all_of(wanted, [&](const std::string& name) {
        const auto link = files.readLink(wrapper / name);
        return link && *link == (application / name).string();
    });
    return isComplete && present == wanted ? WrapperLinks::sound : WrapperLinks::incomplete;
}

} // namespace tavrik
