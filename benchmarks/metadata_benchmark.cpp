// SPDX-License-Identifier: GPL-3.0-or-later
// What the metadata of one photo cost: each choice of what to include, with the program kept running, beside a
// program started for each photo.
#include "metadata/metadata_transfer.h"
#include "platform/whole_file.h"
#include "support/test_pictures.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

using namespace zelto;

// A 6-megapixel photo with Exif data, and an output made from it.
struct Files {
    Files() {
        TestJpeg camera;
        camera.exifDpi = 300;
        if (!writeWholeFile(request.source, jpegBytes(scene, camera))) std::abort();
    }

    QTemporaryDir folder;
    const QImage scene = drawnScene({3000, 2000});
    const QByteArray output = jpegBytes(scene);
    MetadataRequest request{{}, folder.filePath(QStringLiteral("source.jpg")), 0, 300.0, std::nullopt};
};

void transfer(benchmark::State& state, ExiftoolPool& pool, const Files& files) {
    MetadataRequest request = files.request;
    request.exifDataToInclude = state.range(0);
    MetadataTransfer transfer(pool);
    if (!transfer.CopyExifDataTo(files.output, files.scene, request)) state.SkipWithError("exiftool failed");
}

void keptRunning(benchmark::State& state) {
    static Files files;
    ExiftoolPool pool(1);
    transfer(state, pool, files);  // starts the program
    for (auto _ : state) transfer(state, pool, files);
}
BENCHMARK(keptRunning)
    ->Name("metadata/kept-running/choice")
    ->DenseRange(0, 3)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void startedForEach(benchmark::State& state) {
    static Files files;
    for (auto _ : state) {
        ExiftoolPool pool(1);
        transfer(state, pool, files);
    }
}
BENCHMARK(startedForEach)
    ->Name("metadata/started-for-each")
    ->Arg(0)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
