#include "ui/InterfaceFont.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace tavrik {

void useInterfaceFont() {
    const QString family = QStringLiteral("Inter");
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    // A Mac's own has a name that begins with a full stop.
    if (font.family().startsWith(QLatin1Char('.')) || !QFontDatabase::families().contains(family))
        return;
    font.setFamily(family);
    QGuiApplication::setFont(font);
}

} // namespace tavrik
