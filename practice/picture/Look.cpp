#include "practice/picture/Look.h"

#include "platform/LetterFamilies.h"

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

} // namespace

QFont Look::fontFor(const QString& title, QFont font) {
    for (const char32_t point : title.toStdU32String()) {
        if (const auto family = familyOfStyledLetter(point); !family.empty()) {
            font.setFamilies(QStringList{QString::fromUtf8(family)} + font.families());
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
