#include "system/AccessCheck.h"

#include "platform/AppFolders.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/PrivacyRefusal.h"
#include "platform/Volume.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

constexpr std::size_t kBeginning = 16; // bytes
constexpr const char* kProbe = ".tavrik-access";

/// The first system that has "System Settings" and looks after changes of applications.
constexpr int kSystemSettings = 13;

MacPath nearestFolder(const FileManager& files, MacPath folder) {
    while (!files.exists(folder) && folder.parent() != folder)
        folder = folder.parent();
    return folder;
}

/// Makes an empty file and removes it. One that a killed check left is removed.
Status tryToWrite(FileManager& files, const MacPath& folder) {
    const MacPath probe = folder / kProbe;
    if (const Status made = files.create(probe, {}); !made && made.error().code != EEXIST)
        return made;
    const auto found = files.attributes(probe, Links::dontFollow);
    if (!found || found->type != FileType::file || found->size != 0)
        return Done{};
    return files.remove(probe);
}

/// As a person writes it.
std::string shortened(const MacPath& place, const MacPath& home) {
    return place.isInside(home) ? "~" + place.string().substr(home.string().size()) : place.string();
}

std::string listed(const std::vector<RefusedPlace>& refused, const MacPath& home) {
    std::string text;
    for (const RefusedPlace& place : refused) {
        const bool goesWithout = std::ranges::any_of(refused, [&](const RefusedPlace& other) {
            return other.place != place.place && place.place.isInside(other.place);
        });
        if (!goesWithout)
            text += (text.empty() ? "" : ", ") + shortened(place.place, home);
    }
    return text;
}

} // namespace

std::vector<RefusedPlace> refusedPlaces(const Mac& mac, const MacPath& supportFolder) {
    std::vector<RefusedPlace> refused;
    const auto note = [&](const auto& outcome, const MacPath& place, Use use) {
        if (!outcome && isPrivacyRefusal(outcome.error()))
            refused.push_back({place, use});
    };
    const MacPath home = mac.volume.home();
    const MacPath preferences = dockPreferencesPath(home);
    for (const MacPath& store : {preferences, launchpadDatabasePath(mac.volume.temporaryFolder())})
        note(mac.files.readBeginning(store, kBeginning), store, Use::read);
    for (const MacPath& folder : standardAppFolders(home))
        note(mac.files.list(folder), folder, Use::list);
    for (const MacPath& folder : {preferences.parent(), wrapperFolder(home), supportFolder}) {
        const MacPath nearest = nearestFolder(mac.files, folder);
        note(tryToWrite(mac.files, nearest), nearest, Use::write);
    }
    return refused;
}

PrivacyPane paneFor(const std::vector<RefusedPlace>& refused, const SystemVersion& version) {
    const bool areWrappers = std::ranges::all_of(refused, [](const RefusedPlace& place) {
        return place.use == Use::write && place.place.string().find("/Applications") != std::string::npos;
    });
    return areWrappers && version.major >= kSystemSettings ? PrivacyPane::appManagement
                                                           : PrivacyPane::fullDiskAccess;
}

std::string inWords(const std::vector<RefusedPlace>& refused, const SystemVersion& version,
                    const MacPath& home) {
    if (refused.empty())
        return {};
    const std::string places = listed(refused, home);
    if (version.major < kSystemSettings)
        return "Switch Tavrik on in System Preferences > Security & Privacy > Privacy > Full Disk Access (for "
               "tavrikctl, the terminal that it runs in) and open it again: macOS keeps it from " +
               places + ".";
    if (paneFor(refused, version) == PrivacyPane::appManagement)
        return "Switch Tavrik on in System Settings > Privacy & Security > App Management (for tavrikctl, the "
               "terminal that it runs in) and open it again: macOS keeps it from " +
               places + ".";
    return "Switch Tavrik on in System Settings > Privacy & Security > Full Disk Access (for tavrikctl, the "
           "terminal that it runs in) and open it again: macOS keeps it from " +
           places + ".";
}

Status checkAccess(const Mac& mac, const MacPath& supportFolder) {
    const auto refused = refusedPlaces(mac, supportFolder);
    if (refused.empty())
        return Done{};
    return Error{inWords(refused, mac.machine.systemVersion(), mac.volume.home()), EPERM};
}

} // namespace tavrik
