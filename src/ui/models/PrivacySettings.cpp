#include "ui/models/PrivacySettings.h"

#include "ui/models/Notices.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

namespace tavrik {

void openPrivacySettings(PrivacyPane pane, Notices& notices) {
    const QLatin1String name(pane == PrivacyPane::appManagement ? "Privacy_AppBundles" : "Privacy_AllFiles");
    const QUrl address(QStringLiteral("x-apple.systempreferences:com.apple.preference.security?") + name);
    if (!QDesktopServices::openUrl(address))
        notices.refuse(QCoreApplication::translate("tavrik::PrivacySettings",
                                                   "The system's settings could not be opened."));
}

} // namespace tavrik
