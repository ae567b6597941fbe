#include "system/IconManager.h"

#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

namespace tavrik::bench {
namespace {

/// Rings that grow finer outwards, in four colours, with a soft transparent edge: hard on any scaler.
QImage rings(int width, int height) {
    QImage picture(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const double dx = (2.0 * x - width) / width;
            const double dy = (2.0 * y - height) / height;
            const double squared = dx * dx + dy * dy;
            const auto wave = [squared](double phase) {
                return static_cast<int>(127.5 + 127.4 * std::sin(120 * squared + phase));
            };
            const int alpha = std::clamp(static_cast<int>(255 * 8 * (1 - squared)), 0, 255);
            row[x] = qPremultiply(qRgba(wave(0), wave(2), wave(4), alpha));
        }
    }
    return picture;
}

void squareIcon(benchmark::State& state) {
    const QImage source = rings(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state)
        benchmark::DoNotOptimize(IconManager::squareIcon(source));
}

/// The peer in the same process: what the library itself does to fit a picture into a square.
void squareByPainter(benchmark::State& state) {
    const QImage source = rings(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        QImage square(1024, 1024, QImage::Format_ARGB32_Premultiplied);
        square.fill(Qt::transparent);
        const QImage scaled = source.scaled(1024, 1024, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&square);
        painter.drawImage((1024 - scaled.width()) / 2, (1024 - scaled.height()) / 2, scaled);
        painter.end();
        benchmark::DoNotOptimize(square);
    }
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    for (const auto& [width, height] :
         {std::pair{512, 512}, {1024, 1024}, {2048, 2048}, {4096, 4096}, {1500, 1000}})
        benchmark->Args({width, height});
    benchmark->UseRealTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(squareIcon)->Apply(sizes);
BENCHMARK(squareByPainter)->Apply(sizes);

} // namespace
} // namespace tavrik::bench
