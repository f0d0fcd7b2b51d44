// SPDX-License-Identifier: GPL-3.0-or-later
// Reading a 24-megapixel JPEG, beside libjpeg-turbo decoding the same file into one row over and over, which
// is the least that any reader has to do; and what it would cost beside that to have another process read it.
#include "pictures/libjpeg.h"
#include "pictures/picture_reader.h"
#include "support/test_pictures.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using namespace zelto;

constexpr QSize PhotoSize(6000, 4000);

// The photo's file, made when it is first asked for.
QString photoFile(const QString& name, const TestJpeg& options) {
    static const QTemporaryDir folder;
    static const QImage scene = drawnScene(PhotoSize);
    QFile file(folder.filePath(name));
    if (!file.exists()) {
        const QByteArray bytes = jpegBytes(scene, options);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
    }
    return file.fileName();
}

TestJpeg cameraJpeg() {
    TestJpeg options;
    options.quality = 95;
    options.fullChroma = false;
    return options;
}

void setCounters(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * PhotoSize.width() * PhotoSize.height());
}

void decodeByLibjpegAlone(benchmark::State& state) {
    QFile file(photoFile(QStringLiteral("plain.jpg"), cameraJpeg()));
    if (!file.open(QIODevice::ReadOnly)) std::abort();
    const QByteArray bytes = file.readAll();
    std::vector<JSAMPLE> row(std::size_t{4} * PhotoSize.width());
    for (auto _ : state) {
        jpeg_error_mgr errors{};
        jpeg_decompress_struct info{};
        info.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&info);
        jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(bytes.constData()),
                     static_cast<unsigned long>(bytes.size()));
        jpeg_read_header(&info, TRUE);
        info.out_color_space = JCS_EXT_BGRA;
        jpeg_start_decompress(&info);
        JSAMPROW target = row.data();
        while (info.output_scanline < info.output_height) jpeg_read_scanlines(&info, &target, 1);
        jpeg_finish_decompress(&info);
        jpeg_destroy_decompress(&info);
    }
    setCounters(state);
}

void readPhoto(benchmark::State& state, const QString& name, const TestJpeg& options) {
    const QString path = photoFile(name, options);
    for (auto _ : state) {
        const Result<Picture> picture = readPicture(path);
        if (!picture) std::abort();
        benchmark::DoNotOptimize(picture->image.constBits());
    }
    setCounters(state);
}

void readUprightPhoto(benchmark::State& state) {
    readPhoto(state, QStringLiteral("plain.jpg"), cameraJpeg());
}

void readPortraitPhoto(benchmark::State& state) {
    TestJpeg options = cameraJpeg();
    options.orientation = 6;
    readPhoto(state, QStringLiteral("portrait.jpg"), options);
}

void readAdobeRgbPhoto(benchmark::State& state) {
    TestJpeg options = cameraJpeg();
    options.profile = adobeRgbProfile();
    readPhoto(state, QStringLiteral("adobe-rgb.jpg"), options);
}

void readSizeOnly(benchmark::State& state) {
    const QString path = photoFile(QStringLiteral("plain.jpg"), cameraJpeg());
    for (auto _ : state) benchmark::DoNotOptimize(readPictureSize(path));
}

// A picture is put into memory that two processes share, and taken out of it. Both are this one here, which leaves out
// that the other has to be woken.
void handOverInSharedMemory(benchmark::State& state) {
    const QImage decoded = drawnScene({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    const auto bytes = static_cast<std::size_t>(decoded.sizeInBytes());
    for (auto _ : state) {
        const int memory = ::memfd_create("picture", MFD_CLOEXEC);
        if (::ftruncate(memory, decoded.sizeInBytes()) != 0) std::abort();
        void* const theirs = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, memory, 0);
        void* const ours = ::mmap(nullptr, bytes, PROT_READ, MAP_SHARED, memory, 0);
        if (theirs == MAP_FAILED || ours == MAP_FAILED) std::abort();
        std::memcpy(theirs, decoded.constBits(), bytes);
        const QImage taken = QImage(static_cast<const uchar*>(ours), decoded.width(), decoded.height(),
                                    decoded.bytesPerLine(), decoded.format())
                                 .copy();
        benchmark::DoNotOptimize(taken.constBits());
        ::munmap(theirs, bytes);
        ::munmap(ours, bytes);
        ::close(memory);
    }
}

BENCHMARK(decodeByLibjpegAlone)->Unit(benchmark::kMillisecond);
BENCHMARK(readUprightPhoto)->Unit(benchmark::kMillisecond);
BENCHMARK(readPortraitPhoto)->Unit(benchmark::kMillisecond);
BENCHMARK(readAdobeRgbPhoto)->Unit(benchmark::kMillisecond);
BENCHMARK(readSizeOnly)->Unit(benchmark::kMicrosecond);
BENCHMARK(handOverInSharedMemory)->Unit(benchmark::kMillisecond)->Args({6000, 4000})->Args({1500, 1000});

}  // namespace
