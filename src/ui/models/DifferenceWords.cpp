#include "ui/models/DifferenceWords.h"

#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"

#include <QCoreApplication>

namespace tavrik {

namespace {

QString counted(const char* text, std::size_t count) {
    return QCoreApplication::translate("Differences", text, nullptr, static_cast<int>(count));
}

QString translated(const char* text) {
    return QCoreApplication::translate("Differences", text);
}

} // namespace

QString countedDifferences(const LayoutDifferences& since) {
    QStringList parts;
    const auto add = [&parts](const char* text, std::size_t count) {
        if (count > 0)
            parts.append(counted(text, count));
    };
    add(QT_TRANSLATE_N_NOOP("Differences", "%n app(s) moved"), since.moved.size());
    add(QT_TRANSLATE_N_NOOP("Differences", "%n new in Launchpad"), since.onlyAfter.size());
    add(QT_TRANSLATE_N_NOOP("Differences", "%n gone from Launchpad"), since.onlyBefore.size());
    add(QT_TRANSLATE_N_NOOP("Differences", "%n new in the Dock"), since.tilesOnlyAfter.size());
    add(QT_TRANSLATE_N_NOOP("Differences", "%n gone from the Dock"), since.tilesOnlyBefore.size());
    if (since.isDockReordered)
        parts.append(translated(QT_TRANSLATE_NOOP("Differences", "the Dock in another order")));
    return parts.join(QStringLiteral(", "));
}

QStringList wordedDifferences(const LayoutDifferences& since) {
    QStringList lines;
    const auto add = [&lines](const char* text, const std::vector<std::string>& names) {
        if (!names.empty())
            lines.append(translated(text).arg(toQStrings(names).join(QStringLiteral(", "))));
    };
    add(QT_TRANSLATE_NOOP("Differences", "New in Launchpad: %1."), since.onlyAfter);
    add(QT_TRANSLATE_NOOP("Differences", "Gone from Launchpad: %1."), since.onlyBefore);
    for (const auto& [name, from, to] : since.moved)
        lines.append(translated(QT_TRANSLATE_NOOP("Differences", "%1 moved from %2 to %3."))
                         .arg(toQString(name), inTheirLanguage(from), inTheirLanguage(to)));
    add(QT_TRANSLATE_NOOP("Differences", "New in the Dock: %1."), since.tilesOnlyAfter);
    add(QT_TRANSLATE_NOOP("Differences", "Gone from the Dock: %1."), since.tilesOnlyBefore);
    if (since.isDockReordered)
        lines.append(
            translated(QT_TRANSLATE_NOOP("Differences", "The tiles of the Dock stand in another order.")));
    return lines;
}

} // namespace tavrik
