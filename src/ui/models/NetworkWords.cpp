#include "ui/models/NetworkWords.h"

#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"

#include <QCoreApplication>
#include <QStringList>

#include <limits>

namespace tavrik {

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("NetworkWords", text);
}

} // namespace

QString networkSentence(RemoteFailure failure) {
    return inTheirLanguage(sentenceOf(failure));
}

QString systemText(const SystemVersion& version) {
    constexpr int kAny = std::numeric_limits<int>::max();
    QStringList numbers{QString::number(version.major)};
    const bool hasPatch = version.patch > 0 && version.patch < kAny;
    if ((version.minor > 0 || hasPatch) && version.minor < kAny)
        numbers.append(QString::number(version.minor));
    if (hasPatch)
        numbers.append(QString::number(version.patch));
    return numbers.join(u'.');
}

QString systemsText(const std::optional<SystemVersion>& minimum, const std::optional<SystemVersion>& maximum) {
    if (minimum && maximum)
        return translated(QT_TRANSLATE_NOOP("NetworkWords", "macOS %1 to %2"))
            .arg(systemText(*minimum), systemText(*maximum));
    if (minimum)
        return translated(QT_TRANSLATE_NOOP("NetworkWords", "macOS %1 or later")).arg(systemText(*minimum));
    return maximum ? translated(QT_TRANSLATE_NOOP("NetworkWords", "macOS up to %1")).arg(systemText(*maximum))
                   : QString();
}

} // namespace tavrik
