#include "bench/BenchMac.h"
#include "bench/IconFolders.h"
#include "bench/SamplePictures.h"
#include "icons/ThumbnailFile.h"
#include "platform/FileManager.h"
#include "platform/Png.h"

#include <QBuffer>

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

constexpr int kRows = 500;

/// A practice Mac with an icon for each of 500 rows.
struct Rows {
    Rows() {
        if (!practice::furnish(folder.path(), {}))
            std::abort();
        Icons icons(folder.path());
        paths = icons.fill("com.example.rows", kRows, drawnPicture(1024));
        for (const MacPath& path : paths)
            files.push_back(icons.practice.mac().volume.hostPath(thumbnailPath(path, ThumbnailSize::x2)));
    }

    Folder folder;
    std::vector<MacPath> paths;
    std::vector<HostPath> files; ///< of the large thumbnails
};

/// From an icon that is in memory to both thumbnails on the disk.
void bothThumbnails(benchmark::State& state) {
    const Rows rows;
    Icons icons(rows.folder.path());
    icons.cache.loadImage(rows.paths.front());
    for (auto _ : state) {
        icons.cache.generateThumbnails(rows.paths.front());
        icons.cache.waitForThumbnails();
    }
}

void bothThumbnailsByQt(benchmark::State& state) {
    const Folder folder;
    const QImage icon = drawnPicture(1024);
    const QString file = QString::fromStdString(folder.path().string() + "/thumbnail.png");
    for (auto _ : state) {
        for (const int side : {130, 65})
            icon.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation).save(file, "png");
    }
}

/// 1,000 looks a round.
void cachedThumbnail(benchmark::State& state) {
    const Rows rows;
    Icons icons(rows.folder.path());
    for (auto _ : state) {
        for (int look = 0; look < 1'000; ++look)
            benchmark::DoNotOptimize(icons.cache.thumbnail(rows.paths.front(), ThumbnailSize::x2));
    }
}

/// All rows' thumbnails from their files, nothing in memory.
void rowsThumbnails(benchmark::State& state) {
    const Rows rows;
    for (auto _ : state) {
        state.PauseTiming();
        auto icons = std::make_unique<Icons>(rows.folder.path());
        state.ResumeTiming();
        for (const MacPath& path : rows.paths)
            benchmark::DoNotOptimize(icons->cache.thumbnail(path, ThumbnailSize::x2));
        state.PauseTiming();
        icons.reset();
        state.ResumeTiming();
    }
}

void rowsThumbnailsByQt(benchmark::State& state) {
    const Rows rows;
    for (auto _ : state) {
        std::vector<QImage> images;
        for (const HostPath& file : rows.files)
            images.push_back(QImage(QString::fromStdString(file.string()))
                                 .convertToFormat(QImage::Format_ARGB32_Premultiplied));
        benchmark::DoNotOptimize(images.data());
    }
}

void codedByUs(benchmark::State& state) {
    const QImage icon = state.range(0) == 0 ? drawnPicture(1024) : photoLikePicture(1024);
    const QImage picture = icon.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        benchmark::DoNotOptimize(png::encode(picture));
}

void readByUs(benchmark::State& state) {
    const Bytes file = *png::encode(state.range(0) == 0 ? drawnPicture(2048) : photoLikePicture(2048));
    for (auto _ : state)
        benchmark::DoNotOptimize(png::decode(file));
}

void readByQt(benchmark::State& state) {
    const Bytes file = *png::encode(state.range(0) == 0 ? drawnPicture(2048) : photoLikePicture(2048));
    for (auto _ : state)
        benchmark::DoNotOptimize(QImage::fromData(file.data(), static_cast<int>(file.size()), "png")
                                     .convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

BENCHMARK(bothThumbnails)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(bothThumbnailsByQt)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(cachedThumbnail)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rowsThumbnails)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rowsThumbnailsByQt)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(codedByUs)->Arg(0)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readByUs)->Arg(0)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readByQt)->Arg(0)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
