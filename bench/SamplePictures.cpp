#include "bench/SamplePictures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace tavrik::bench {

namespace {

/// A smooth curtain over the plane: random heights at the crossings of a grid, blended in between.
class SmoothNoise {
public:
    SmoothNoise(int cells, std::mt19937& random)
        : m_cells(cells),
          m_heights(std::size_t(cells + 2) * (cells + 2)) {
        std::uniform_real_distribution<float> height(-1, 1);
        for (float& each : m_heights)
            each = height(random);
    }

    /// At a place between 0 and 1 each way.
    float at(float x, float y) const {
        const float column = x * float(m_cells);
        const float row = y * float(m_cells);
        const auto left = static_cast<int>(column);
        const auto top = static_cast<int>(row);
        const float across = eased(column - float(left));
        const float down = eased(row - float(top));
        return std::lerp(std::lerp(height(left, top), height(left + 1, top), across),
                         std::lerp(height(left, top + 1), height(left + 1, top + 1), across), down);
    }

private:
    static float eased(float part) { return part * part * (3 - 2 * part); }

    float height(int column, int row) const {
        return m_heights[std::size_t(row) * std::size_t(m_cells + 2) + std::size_t(column)];
    }

    int m_cells;
    std::vector<float> m_heights;
};

} // namespace

QImage drawnPicture(int side) {
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(side / 100.0, side / 100.0);

    QRadialGradient shadow(50, 54, 50);
    shadow.setColorAt(0.8, QColor(0, 0, 0, 90));
    shadow.setColorAt(1, Qt::transparent);
    painter.fillRect(QRectF(0, 4, 100, 96), shadow);

    QLinearGradient ground(0, 10, 0, 90);
    ground.setColorAt(0, QColor(74, 155, 242));
    ground.setColorAt(1, QColor(26, 62, 173));
    QPainterPath outline;
    outline.addRoundedRect(10, 10, 80, 80, 18, 18);
    painter.fillPath(outline, ground);

    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawEllipse(QPointF(50, 50), 27, 27);
    painter.setBrush(QColor(245, 190, 60));
    painter.drawPolygon(QPolygonF({QPointF(50, 26), QPointF(57, 52), QPointF(50, 58), QPointF(43, 52)}));
    painter.setBrush(QColor(210, 60, 70));
    painter.drawPolygon(QPolygonF({QPointF(50, 74), QPointF(43, 52), QPointF(50, 46), QPointF(57, 52)}));
    painter.setPen(QPen(QColor(20, 40, 90, 160), 0.6));
    for (int turn = 0; turn < 24; ++turn) {
        painter.drawLine(QPointF(50, 19), QPointF(50, turn % 2 == 0 ? 23 : 21));
        painter.translate(50, 50);
        painter.rotate(15);
        painter.translate(-50, -50);
    }
    return picture;
}

QImage photoLikePicture(int side) {
    std::mt19937 random(7); // the same picture each time
    std::vector<SmoothNoise> layers;
    for (int octave = 0; octave < 9; ++octave)
        layers.emplace_back(3 << octave, random);
    std::normal_distribution<float> grain(0, 2);

    QImage picture(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < side; ++x) {
            float light = 120;
            float colour = 0;
            float weight = 70;
            for (const SmoothNoise& layer : layers) {
                const float height = layer.at(float(x) / float(side), float(y) / float(side));
                light += weight * height;
                colour = colour * 0.6f + weight * 0.3f * height;
                weight *= 0.55f;
            }
            const auto channel = [&](float part) {
                return std::clamp(static_cast<int>(light + part * colour + grain(random)), 0, 255);
            };
            const std::array channels{channel(1), channel(0.2f), channel(-0.8f)};
            row[x] = qRgb(channels[0], channels[1], channels[2]);
        }
    }
    return picture;
}

} // namespace tavrik::bench
