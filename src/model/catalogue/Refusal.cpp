#include "model/catalogue/Refusal.h"

#include "model/ApplicationInfo.h"

namespace tavrik {

std::string refusalOf(const ApplicationInfo& app, bool isListedUnsupported) {
    if (app.isIOSApp) {
        return app.name +
               " is an iOS app: the system draws its icon from inside the bundle, and a wrapper cannot change "
               "that. Applications made for the Mac can be restyled.";
    }
    if (isListedUnsupported)
        return app.name + " (" + app.bundleID +
               ") does not work through a wrapper, so it is not restyled. Other applications are.";
    if (app.isUnsupportedApp) {
        return app.name + " lies at " + app.path.string() +
               ", outside the standard places. Move it to /Applications or ~/Applications, and it can be "
               "restyled.";
    }
    return {};
}

} // namespace tavrik
