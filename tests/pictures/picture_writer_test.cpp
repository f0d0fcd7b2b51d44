// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_writer.h"

#include "pictures/picture_reader.h"
#include "support/ink.h"
#include "support/run_program.h"
#include "support/test_pictures.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

using F = PictureFormat;

QByteArray encoded(const QImage& picture, PictureFormat format, const EncodeOptions& options = {}) {
    const Result<QByteArray> bytes = encodePicture(picture, format, options);
    EXPECT_TRUE(bytes) << qPrintable(bytes.error().message);
    return bytes.value_or(QByteArray());
}

QImage readBack(const QByteArray& bytes) {
    const Result<Picture> picture = decodePicture(bytes);
    EXPECT_TRUE(picture);
    return picture ? picture->image : QImage();
}

// Root mean square of the differences of all bytes; infinite for pictures of different sizes.
double difference(const QImage& a, const QImage& b) {
    if (a.size() != b.size() || a.isNull()) return INFINITY;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < 4 * a.width(); ++i)
            sum += std::pow(a.constScanLine(y)[i] - b.constScanLine(y)[i], 2);
    }
    return std::sqrt(sum / (4.0 * a.width() * a.height()));
}

// What exiftool, which shares no code with the encoders, finds in a file: the tags' values, blanks between them.
std::string tagsOf(const QByteArray& bytes, const char* tags) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(bytes) == bytes.size() && file.flush());
    const QStringList arguments = QString::fromLatin1(tags).split(u' ') + QStringList(file.fileName());
    return runProgram(QStringLiteral("exiftool"), QStringList(QStringLiteral("-T")) + arguments)
        .output.simplified()
        .toStdString();
}

// Odd widths leave padding in rows and parts of blocks; the tall one takes more than one strip or band.
TEST(EncodePicture, ReadsBackAsWhatWasWritten) {
    struct Row {
        PictureFormat format;
        double opaqueError, alphaError;
        bool keepsAlpha;
    };
    const Row rows[] = {
        {F::Jpeg, 5.0, 5.0, false}, {F::Png, 0.0, 0.0, true},
        {F::Tiff, 0.0, 0.0, true},  {F::Bmp, 0.0, 0.0, false},  // a palette of 256 for a scene, dithered
        {F::Gif, 12.0, 40.0, true},                             // half-transparent pixels become opaque
    };
    for (const Row& row : rows) {
        for (const QSize size : {QSize(1, 1), QSize(3, 5), QSize(257, 131), QSize(301, 1200)}) {
            SCOPED_TRACE(::testing::Message() << static_cast<int>(row.format) << ' ' << size.width());
            const EncodeOptions options{.quality = 95};
            const QImage opaque = drawnScene(size);
            EXPECT_LE(difference(readBack(encoded(opaque, row.format, options)), opaque), row.opaqueError);
            const QImage alpha = drawnSceneWithAlpha(size);
            const QImage result = readBack(encoded(alpha, row.format, options));
            EXPECT_LE(difference(result, row.keepsAlpha ? alpha : onWhite(alpha)), row.alphaError);
            EXPECT_TRUE(size.width() <= 3 || result.hasAlphaChannel() == row.keepsAlpha);
        }
    }
}

TEST(EncodePicture, RecordsSizeResolutionAndCompressionForOtherPrograms) {
    const EncodeOptions options{.quality = 90, .dpiX = 300, .dpiY = 150};
    const QImage opaque = drawnScene({64, 48});
    const QImage alpha = drawnSceneWithAlpha({64, 48});
    const char* const resolution = "-ImageSize -XResolution -YResolution -ResolutionUnit";
    const struct {
        QByteArray file;
        const char* tags;
        const char* values;
    } rows[] = {
        {encoded(opaque, F::Jpeg, options), resolution, "64x48 300 150 inches"},
        {encoded(opaque, F::Tiff, options), resolution, "64x48 300 150 inches"},
        {encoded(alpha, F::Tiff, options), "-SamplesPerPixel -ExtraSamples", "4 Unassociated Alpha"},
        {encoded(opaque, F::Png, options), "-ImageSize -PixelsPerUnitX -PixelsPerUnitY", "64x48 11811 5906"},
        {encoded(alpha, F::Png, options), "-ColorType", "RGB with Alpha"},
        {encoded(alpha, F::Bmp, options), "-ImageSize -PixelsPerMeterX -PixelsPerMeterY", "64x48 11811 5906"},
        {encoded(alpha, F::Gif, options), "-FileType -ImageSize", "GIF 64x48"},
        // Coloured detail is kept whole from quality 90 on.
        {encoded(opaque, F::Jpeg, {.quality = 89}), "-YCbCrSubSampling", "YCbCr4:2:0 (2 2)"},
        {encoded(opaque, F::Jpeg, options), "-YCbCrSubSampling", "YCbCr4:4:4 (1 1)"},
    };
    for (const auto& row : rows) EXPECT_EQ(tagsOf(row.file, row.tags), row.values);
    for (const PictureFormat format : {F::Jpeg, F::Png, F::Tiff, F::Bmp}) {
        const Result<Picture> picture = decodePicture(encoded(opaque, format, options));
        EXPECT_TRUE(picture && picture->dpiX == 300.0 && picture->dpiY == 150.0) << static_cast<int>(format);
    }
}

TEST(EncodePicture, RefusesWhatAFormatCannotHold) {
    struct Row {
        QSize size;
        PictureFormat format;
        bool fits;
    };
    const Row rows[] = {
        {{65500, 2}, F::Jpeg, true}, {{65501, 2}, F::Jpeg, false},  {{2, 65501}, F::Jpeg, false},
        {{65535, 2}, F::Gif, true},  {{65536, 2}, F::Gif, false},   {{2, 65501}, F::Pdf, false},
        {{70000, 2}, F::Png, true},  {{2, 1000001}, F::Png, false}, {{70000, 2}, F::Tiff, true},
        {{70000, 2}, F::Bmp, true},  {{0, 0}, F::Jpeg, false},      {{0, 0}, F::Pdf, false}};
    for (const Row& row : rows) {
        QImage picture(row.size, QImage::Format_RGB32);
        picture.fill(qRgb(1, 2, 3));
        const Result<QByteArray> bytes = encodePicture(picture, row.format, {});
        ASSERT_EQ(bytes.has_value(), row.fits) << row.size.width() << ' ' << static_cast<int>(row.format);
        if (row.fits) {
            EXPECT_EQ(readBack(*bytes).size(), row.size);
        } else {
            EXPECT_EQ(bytes.error().code, ErrorCode::InvalidValue);
        }
    }
}

TEST(EncodeGif, KeepsUpTo256ColoursExactlyAndTransparencyAsAMask) {
    for (const int colours : {1, 2, 3, 16, 17, 200, 256}) {
        const QImage picture = pictureOf({64, 40}, QImage::Format_RGB32, [=](int x, int y) {
            const int k = (64 * y + x) % colours;
            return qRgb(k * 37 % 256, k, 255 - k);
        });
        EXPECT_EQ(difference(readBack(encoded(picture, F::Gif)), picture), 0.0) << colours;
    }
    const QImage alpha = drawnSceneWithAlpha({200, 150});
    const QImage result = readBack(encoded(alpha, F::Gif));
    for (int i = 0; i < 200 * 150; ++i) {
        const QPoint at(i % 200, i / 200);
        ASSERT_EQ(qAlpha(result.pixel(at)), qAlpha(alpha.pixel(at)) >= 128 ? 255 : 0)
            << at.x() << ' ' << at.y();
    }
}

}  // namespace
}  // namespace zelto
