#include "ui/models/Amounts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace tavrik {

namespace {

QDateTime localTime(Date moment) {
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(std::floor(toUnix(moment))));
}

QString translated(const char* text) {
    return QCoreApplication::translate("Amounts", text);
}

} // namespace

QString sizeText(std::uint64_t bytes) {
    constexpr std::uint64_t kKilobyte = 1000;
    constexpr std::uint64_t kMegabyte = kKilobyte * kKilobyte;
    constexpr std::uint64_t kGigabyte = kKilobyte * kMegabyte;
    const QLocale locale;
    const auto in = [&](std::uint64_t unit) {
        return locale.toString(static_cast<double>(bytes) / static_cast<double>(unit), 'f', 1);
    };
    if (bytes < kMegabyte - kKilobyte)
        return translated(QT_TRANSLATE_NOOP("Amounts", "%1 KB"))
            .arg(locale.toString(static_cast<qulonglong>((bytes + kKilobyte - 1) / kKilobyte)));
    return bytes < kGigabyte ? translated(QT_TRANSLATE_NOOP("Amounts", "%1 MB")).arg(in(kMegabyte))
                             : translated(QT_TRANSLATE_NOOP("Amounts", "%1 GB")).arg(in(kGigabyte));
}

QString momentText(Date moment, Date now) {
    const QDateTime time = localTime(moment);
    const qint64 days = time.date().daysTo(localTime(now).date());
    const QLocale locale;
    const QString hour = locale.toString(time.time(), QLocale::ShortFormat);
    if (days == 0)
        return translated(QT_TRANSLATE_NOOP("Amounts", "Today at %1")).arg(hour);
    if (days == 1)
        return translated(QT_TRANSLATE_NOOP("Amounts", "Yesterday at %1")).arg(hour);
    return translated(QT_TRANSLATE_NOOP("Amounts", "%1 at %2"))
        .arg(locale.toString(time.date(), translated(QT_TRANSLATE_NOOP("Amounts", "d MMM yyyy"))), hour);
}

} // namespace tavrik
