#include "practice/picture/Look.h"

#include <QStringList>

namespace tavrik::practice {

namespace {

QFont font(int pixels, QFont::Weight weight) {
    QFont font;
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Math"),
                      QStringLiteral("DejaVu Sans")});
    font.setPixelSize(pixels);
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

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

QFont Look::fontFor(const QString& title, QFont font) {
    for (const char32_t point : title.toStdU32String()) {
        if (const QString family = familyOfStyle(point); !family.isEmpty()) {
            font.setFamilies(QStringList{family} + font.families());
            break;
        }
    }
    return font;
}

Look::Look(Appearance appearance)
    : titleFont(font(13, QFont::Medium)),
      labelFont(font(11, QFont::Medium)),
      headingFont(font(17, QFont::DemiBold)),
      captionFont(font(13, QFont::Normal)) {
    if (appearance == Appearance::light) {
        title = QColor(0x1F, 0x27, 0x38);
        caption = QColor(0x1F, 0x27, 0x38, 150);
        faint = QColor(0x1F, 0x27, 0x38, 56);
        panel = QColor(255, 255, 255, 118);
        panelBorder = QColor(255, 255, 255, 170);
        folderTile = QColor(255, 255, 255, 120);
        shadow = QColor(0x2A, 0x35, 0x5C, 60);
    } else {
        title = QColor(0xF4, 0xF6, 0xFB);
        caption = QColor(0xF4, 0xF6, 0xFB, 160);
        faint = QColor(0xF4, 0xF6, 0xFB, 64);
        panel = QColor(255, 255, 255, 26);
        panelBorder = QColor(255, 255, 255, 46);
        folderTile = QColor(255, 255, 255, 44);
        shadow = QColor(0, 0, 0, 110);
    }
}

} // namespace tavrik::practice
