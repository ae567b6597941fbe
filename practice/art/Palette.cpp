#include "practice/art/Palette.h"

#include <QLinearGradient>

namespace tavrik::practice {
namespace {

constexpr double kLightPlate = 0.72; ///< luminance from which a plate takes a dark glyph

/// The accent that stands out from a colour: gold on cold and dark plates of red or violet, coral on blue and
/// green, indigo on yellow and orange.
QColor accentFor(const QColor& colour) {
    const int hue = colour.hslHue();
    if (colour.hslSaturation() < 40 || hue < 0)
        return QColor(0xFF, 0x6A, 0x4D);
    if (hue < 20 || hue >= 265)
        return QColor(0xFF, 0xD0, 0x4A);
    if (hue < 70)
        return QColor(0x4B, 0x4A, 0xC9);
    if (hue < 170)
        return QColor(0xFF, 0x8A, 0x3C);
    return QColor(0xFF, 0x6F, 0x61);
}

} // namespace

QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto between = [share](float a, float b) { return a + (b - a) * static_cast<float>(share); };
    return QColor::fromRgbF(between(first.redF(), second.redF()), between(first.greenF(), second.greenF()),
                            between(first.blueF(), second.blueF()), between(first.alphaF(), second.alphaF()));
}

double luminance(const QColor& colour) {
    return 0.2126 * colour.redF() + 0.7152 * colour.greenF() + 0.0722 * colour.blueF();
}

Palette Palette::onPlate(const QColor& top, const QColor& bottom) {
    const QColor middle = mixed(top, bottom, 0.5);
    const bool lightPlate = luminance(middle) > kLightPlate;
    Palette palette;
    if (lightPlate) {
        palette.m_main = {QColor(0x4A, 0x55, 0x6B), QColor(0x2A, 0x31, 0x40)};
        palette.m_soft = {QColor(0xA3, 0xAD, 0xBD), QColor(0x8B, 0x96, 0xA8)};
        palette.m_detail = {QColor(Qt::white), mixed(bottom, Qt::white, 0.4)};
        palette.m_shadow = QColor(0, 0, 0, 50);
    } else {
        palette.m_main = {QColor(Qt::white), mixed(Qt::white, middle, 0.10)};
        palette.m_soft = {mixed(middle, Qt::white, 0.66), mixed(middle, Qt::white, 0.52)};
        palette.m_detail = {mixed(top, bottom, 0.35), mixed(bottom, Qt::black, 0.08)};
        palette.m_shadow = mixed(bottom, Qt::black, 0.65);
        palette.m_shadow.setAlpha(110);
    }
    const QColor accent = accentFor(middle);
    palette.m_accent = {accent.lighter(106), accent.darker(108)};
    QColor shade = lightPlate ? QColor(Qt::black) : mixed(bottom, Qt::black, 0.3);
    shade.setAlpha(lightPlate ? 60 : 52);
    palette.m_shade = {shade, shade};
    return palette;
}

Palette Palette::withoutPlate(const QColor& top, const QColor& bottom) {
    Palette palette;
    palette.m_main = {top, bottom};
    palette.m_soft = {mixed(top, Qt::black, 0.22), mixed(bottom, Qt::black, 0.28)};
    palette.m_detail = {QColor(Qt::white), mixed(Qt::white, bottom, 0.14)};
    const QColor accent = accentFor(mixed(top, bottom, 0.5));
    palette.m_accent = {accent.lighter(108), accent.darker(110)};
    QColor shade = mixed(bottom, Qt::black, 0.6);
    shade.setAlpha(70);
    palette.m_shade = {shade, shade};
    palette.m_shadow = QColor(0, 0, 0, 90);
    return palette;
}

QBrush Palette::brush(Tone tone) const {
    const auto vertical = [](const Run& run) {
        QLinearGradient gradient(0, 0, 0, 100);
        gradient.setColorAt(0, run.top);
        gradient.setColorAt(1, run.bottom);
        return QBrush(gradient);
    };
    switch (tone) {
    case Tone::main:
        return vertical(m_main);
    case Tone::soft:
        return vertical(m_soft);
    case Tone::detail:
        return vertical(m_detail);
    case Tone::accent:
        return vertical(m_accent);
    case Tone::shade:
        return vertical(m_shade);
    case Tone::shine:
        return vertical({QColor(255, 255, 255, 120), QColor(255, 255, 255, 40)});
    }
    return {};
}

} // namespace tavrik::practice
