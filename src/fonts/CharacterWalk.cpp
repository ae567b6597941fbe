#include "fonts/CharacterWalk.h"

#include <QString>
#include <QTextBoundaryFinder>

namespace tavrik {

bool isOneCharacter(std::string_view text) {
    const QString units = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return QTextBoundaryFinder(QTextBoundaryFinder::Grapheme, units).toNextBoundary() == units.size();
}

} // namespace tavrik
