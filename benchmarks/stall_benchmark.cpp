// SPDX-License-Identifier: GPL-3.0-or-later
// How long the window hangs at most while it has much to do: "longest_stall_ms" is the longest time in which its event
// loop did not turn, "of_it_work_ms" the processor time that its thread took meanwhile.
#include "app/dialogs/standard_dialogs.h"
#include "app/run/run_controller.h"
#include "app/window/main_window.h"
#include "stall_watchdog.h"
#include "support/test_pictures.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace zelto {
namespace {

constexpr int Photos = 10000;

void runEventsFor(int milliseconds) {
    QEventLoop events;
    QTimer::singleShot(milliseconds, &events, &QEventLoop::quit);
    events.exec();
}

QStringList photoPaths() {
    QStringList paths;
    for (int i = 0; i < Photos; ++i) {
        paths.append(QStringLiteral("/photos/2024/%1/IMG_%2.jpg").arg(i / 500).arg(i));
    }
    return paths;
}

void tell(const StallWatchdog::Stall& longest, benchmark::State& state) {
    state.counters["longest_stall_ms"] = longest.length;
    state.counters["of_it_work_ms"] = longest.work;
}

// From the call that adds them until the list has come to rest.
void StallWhileAddingPhotos(benchmark::State& state) {
    const QStringList paths = photoPaths();
    StallWatchdog::Stall longest;
    for (auto _ : state) {
        MyGlobalInstance shared;
        MainWindow window(shared, standardDialogs(), EditorSet());
        window.show();
        runEventsFor(300);
        StallWatchdog watchdog;
        window.photos().AddImages(paths);
        runEventsFor(500);
        longest = std::max(longest, watchdog.longestStall());
    }
    tell(longest, state);
}
BENCHMARK(StallWhileAddingPhotos)->Unit(benchmark::kMillisecond)->Iterations(3);

// A run over a list of 10,000 rows, of which 60 JPEG photos of 6 megapixels are checked: the others pass by as fast as
// the run can count, and what is left goes as fast as photos can be written. The stall is that of the run alone, up to
// the summary.
void StallWhileABatchRuns(benchmark::State& state) {
    constexpr int Written = 60;
    const QTemporaryDir folder;
    const QByteArray bytes = jpegBytes(drawnScene({3000, 2000}), {.fullChroma = false});
    QStringList paths = photoPaths();
    for (int i = 0; i < Written; ++i) {
        QFile file(folder.filePath(QStringLiteral("photo%1.jpg").arg(i)));
        if (file.open(QFile::WriteOnly)) file.write(bytes);
        paths[i * (Photos / Written)] = file.fileName();
    }
    OutputOptions options;
    options.OutputFormat = SameAsSourceFormat;
    options.JPEGQuality = 90;
    options.ExifDataToInclude = exif_data::ExcludeAll;

    StallWatchdog::Stall longest;
    int round = 0;
    for (auto _ : state) {
        // A folder of its own, or the window asks about the files of the round before.
        options.OutputPath = folder.filePath(QStringLiteral("out%1").arg(round++));
        QDir().mkpath(options.OutputPath);
        MyGlobalInstance shared;
        MainWindow window(shared, standardDialogs(), EditorSet());
        RunParts parts = standardRunParts();
        parts.results = {[](const QString&) {}, [](const QStringList&) {}};
        RunController run(window, shared, parts);
        window.show();
        window.photos().AddImages(paths);
        std::vector<int> unchecked;
        for (int row = 0; row < Photos; ++row) {
            if (!paths[row].startsWith(folder.path())) unchecked.push_back(row);
        }
        window.photos().setApplyWatermark(unchecked, false);
        Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
        text.Text = QStringLiteral("© <<IMGNAME>>");
        text.FontSize = 120;
        window.watermarks().ReflectWatermark(text);
        runEventsFor(1000);
        StallWatchdog watchdog;
        run.ProcessImaging(options);
        while (!window.result().isVisible()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        longest = std::max(longest, watchdog.longestStall());
    }
    tell(longest, state);
}
BENCHMARK(StallWhileABatchRuns)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
}  // namespace zelto
