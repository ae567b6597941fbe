#include "ui/models/StyledText.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace tavrik {

namespace {

/// The family that has all the styled letters of this one's kind; empty for any other character.
QString familyOfStyle(char32_t point) {
    const auto within = [point](char32_t first, char32_t last) { return point >= first && point <= last; };
    if (within(0x2100, 0x214F) || within(0x1D400, 0x1D7FF))
        return QStringLiteral("Noto Sans Math");
    if (within(0x2460, 0x24FF) || within(0x2776, 0x277F) || within(0x1F110, 0x1F189))
        return QStringLiteral("Noto Sans Symbols");
    if (within(0x0250, 0x02AF) || within(0x1D00, 0x1D7F) || point == 0x03D9 || point == 0xA730)
        return QStringLiteral("Noto Sans");
    return {};
}

} // namespace

QString StyledText::familyFor(const QString& text) const {
    for (const char32_t point : text.toStdU32String()) {
        const QString family = familyOfStyle(point);
        if (!family.isEmpty() && QFontDatabase::hasFamily(family))
            return family;
    }
    return QGuiApplication::font().family();
}

} // namespace tavrik
