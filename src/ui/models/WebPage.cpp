#include "ui/models/WebPage.h"

#include "ui/models/Notices.h"
#include "ui/models/Text.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

namespace tavrik {

void openWebPage(const std::string& address, Notices& notices) {
    const QUrl url(toQString(address), QUrl::StrictMode);
    if (!QDesktopServices::openUrl(url))
        notices.refuse(QCoreApplication::translate("WebPage", "No browser could be opened. The address is %1")
                           .arg(url.toString()));
}

} // namespace tavrik
