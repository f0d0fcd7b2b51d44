// SPDX-License-Identifier: GPL-3.0-or-later
// Watermarking a 24-megapixel photo that is already in memory, layers built and drawn, beside the plain copy of its
// pixels in the same run.
#include "render/composition.h"
#include "support/test_pictures.h"

#include <QBuffer>

#include <benchmark/benchmark.h>

#include <cstring>

namespace {

using namespace zelto;

constexpr QSize PhotoSize(6000, 4000);

const QImage& photo() {
    static const QImage scene = drawnScene(PhotoSize);
    return scene;
}

Watermark textRecord(const QString& text, std::int64_t percent, std::int32_t position) {
    Watermark record(watermark_type::Text);
    record.Text = text;
    record.FontFamily = QStringLiteral("DejaVu Sans");
    record.IsRelative = true;
    record.FontRelativeSize = QStringLiteral("Height");
    record.FontSize = percent;
    record.TextColor = Color::white();
    record.Transparency = 0.5F;
    record.Position = position;
    return record;
}

Watermark logoRecord() {
    Watermark record(watermark_type::Image);
    QBuffer buffer(&record.ImageData);
    drawnSceneWithAlpha({1200, 800}).save(&buffer, "PNG");
    record.Transparency = 0.8F;
    record.Resize = true;
    record.ResizeWidth = 0.15F;
    record.Position = 9;
    return record;
}

WatermarkStack logoAndTwoTexts() {
    WatermarkStack stack;
    Watermark shadowed = textRecord(QStringLiteral("<<IMGNAME>>"), 3, 3);
    shadowed.Shadow = true;
    shadowed.ShadowColor = Color::black();
    stack.Watermarks = {logoRecord(), textRecord(QStringLiteral("\u00a9 A. Photographer"), 5, 7), shadowed};
    return stack;
}

WatermarkStack tiledText(std::int64_t rotation) {
    WatermarkStack stack;
    stack.Watermarks = {textRecord(QStringLiteral("PROOF"), 4, 1)};
    stack.Watermarks[0].HorizontalTiling = stack.Watermarks[0].VerticalTiling = true;
    stack.Watermarks[0].HorizontalSpacing = stack.Watermarks[0].VerticalSpacing = 60;
    stack.Watermarks[0].Rotation = rotation;
    return stack;
}

PhotoRequest requestFor(const WatermarkStack& stack, bool keepLogos) {
    PhotoRequest request;
    request.path = QStringLiteral("/photos/beach.jpg");
    request.stack = std::make_shared<const WatermarkStack>(stack);
    if (keepLogos) request.logos = std::make_shared<LogoCache>();
    return request;
}

// The picture of one round is the photo of the next, so that no copy of it is timed.
void compose(benchmark::State& state, const WatermarkStack& stack, bool keepLogos) {
    const PhotoRequest request = requestFor(stack, keepLogos);
    Picture picture;
    picture.image = photo().copy();
    for (auto _ : state) {
        picture.image = MakeWatermarkImage(*buildPhotoScene(request, std::move(picture)), stack);
        benchmark::DoNotOptimize(picture.image.constBits());
    }
}

void copyPixels(benchmark::State& state) {
    QImage copy = photo().copy();
    for (auto _ : state) {
        std::memcpy(copy.bits(), photo().constBits(), static_cast<std::size_t>(copy.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

void rebuildOneText(benchmark::State& state) {
    const PhotoRequest request = requestFor(logoAndTwoTexts(), true);
    Picture picture;
    picture.image = photo();
    PhotoScene scene = *buildPhotoScene(request, std::move(picture));
    for (auto _ : state) UpdateWatermark(scene, request, 2);
}

BENCHMARK(copyPixels)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compose, logoAndTwoTexts, logoAndTwoTexts(), true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compose, logoReadAnew, logoAndTwoTexts(), false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compose, tiledText, tiledText(0), true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compose, tiledTurnedText, tiledText(30), true)->Unit(benchmark::kMillisecond);
BENCHMARK(rebuildOneText)->Unit(benchmark::kMicrosecond);

}  // namespace
