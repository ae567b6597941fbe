#include "fonts/CharacterWalk.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace tavrik {

bool isOneCharacter(std::string_view text) {
    // A Latin line goes before, lest a mark inside decide which script's rules Qt follows from the start.
    const QString line = QStringLiteral("b\n");
    const QString units = line + QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, units);
    finder.setPosition(line.size());
    return finder.toNextBoundary() == units.size();
}

} // namespace tavrik
