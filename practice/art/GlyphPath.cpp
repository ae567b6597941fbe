#include "practice/art/GlyphPath.h"

#include <QTransform>

#include <array>
#include <cstddef>
#include <sstream>
#include <string>

namespace tavrik::practice {
namespace {

constexpr double kMiddle = 50;

/// The numbers that a command takes; nothing for what is no command.
std::optional<std::size_t> operandCount(char command) {
    switch (command) {
    case 'Z':
    case 'X':
        return 0;
    case 'H':
    case 'V':
    case 'T':
        return 1;
    case 'M':
    case 'L':
        return 2;
    case 'O':
        return 3;
    case 'Q':
    case 'E':
        return 4;
    case 'R':
    case 'A':
    case 'a':
        return 5;
    case 'C':
        return 6;
    default:
        return std::nullopt;
    }
}

QRectF squareAbout(double x, double y, double radius) {
    return {x - radius, y - radius, 2 * radius, 2 * radius};
}

void append(QPainterPath& path, char command, const std::array<double, 6>& n) {
    switch (command) {
    case 'M':
        path.moveTo(n[0], n[1]);
        break;
    case 'L':
        path.lineTo(n[0], n[1]);
        break;
    case 'H':
        path.lineTo(n[0], path.currentPosition().y());
        break;
    case 'V':
        path.lineTo(path.currentPosition().x(), n[0]);
        break;
    case 'C':
        path.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
        break;
    case 'Q':
        path.quadTo(n[0], n[1], n[2], n[3]);
        break;
    case 'Z':
        path.closeSubpath();
        break;
    case 'R':
        path.addRoundedRect(QRectF(n[0], n[1], n[2], n[3]), n[4], n[4]);
        break;
    case 'O':
        path.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
        break;
    case 'E':
        path.addEllipse(QPointF(n[0], n[1]), n[2], n[3]);
        break;
    case 'A':
        path.arcMoveTo(squareAbout(n[0], n[1], n[2]), n[3]);
        path.arcTo(squareAbout(n[0], n[1], n[2]), n[3], n[4]);
        break;
    case 'a':
        path.arcTo(squareAbout(n[0], n[1], n[2]), n[3], n[4]);
        break;
    default:
        break;
    }
}

} // namespace

std::optional<QPainterPath> parseGlyphPath(std::string_view text) {
    std::istringstream input{std::string(text)};
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    double turn = 0;
    std::string word;
    while (input >> word) {
        const auto count = word.size() == 1 ? operandCount(word[0]) : std::nullopt;
        if (!count)
            return std::nullopt;
        std::array<double, 6> numbers{};
        for (std::size_t i = 0; i < *count; ++i) {
            if (!(input >> numbers[i]))
                return std::nullopt;
        }
        const bool setsUp = word == "T" || word == "X";
        if (setsUp && !path.isEmpty())
            return std::nullopt;
        if (word == "T")
            turn = numbers[0];
        else if (word == "X")
            path.setFillRule(Qt::OddEvenFill);
        else
            append(path, word[0], numbers);
    }
    if (path.isEmpty())
        return std::nullopt;
    return QTransform().translate(kMiddle, kMiddle).rotate(turn).translate(-kMiddle, -kMiddle).map(path);
}

} // namespace tavrik::practice
