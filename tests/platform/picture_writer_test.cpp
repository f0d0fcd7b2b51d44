// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_writer.h"

#include "platform/picture_reader.h"
#include "platform/picture_rows.h"
#include "support/ink.h"
#include "support/run_program.h"
#include "support/test_pictures.h"

#include <QColor>
#include <QMap>
#include <QTemporaryFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

using ::testing::HasSubstr;
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
        const QRgb* const rowA = pixelRow(a, y);
        const QRgb* const rowB = pixelRow(b, y);
        for (int x = 0; x < a.width(); ++x) {
            for (const int shift : {0, 8, 16, 24}) {
                const double d =
                    static_cast<double>((rowA[x] >> shift) & 0xffU) - ((rowB[x] >> shift) & 0xffU);
                sum += d * d;
            }
        }
    }
    return std::sqrt(sum / (4.0 * a.width() * a.height()));
}

// What exiftool, which shares no code with the encoders, finds in a file.
QMap<QString, QString> tagsOf(const QByteArray& bytes) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(bytes) == bytes.size() && file.flush());
    const ProgramRun exiftool =
        runProgram(QStringLiteral("exiftool"), {QStringLiteral("-s"), file.fileName()});
    EXPECT_EQ(exiftool.exitStatus, 0) << exiftool.errors.constData();
    QMap<QString, QString> tags;
    for (const QByteArray& line : exiftool.output.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        tags[QString::fromUtf8(line.left(colon).trimmed())] =
            QString::fromUtf8(line.mid(colon + 1).trimmed());
    }
    return tags;
}

TEST(PictureFormatForExtension, KnowsTheFormatsInAnyLetterCaseAndNoOthers) {
    const QMap<QString, PictureFormat> known = {
        {QStringLiteral("jpg"), F::Jpeg}, {QStringLiteral("JPEG"), F::Jpeg}, {QStringLiteral("Png"), F::Png},
        {QStringLiteral("tif"), F::Tiff}, {QStringLiteral("TIFF"), F::Tiff}, {QStringLiteral("bmp"), F::Bmp},
        {QStringLiteral("GIF"), F::Gif},  {QStringLiteral("pdf"), F::Pdf}};
    for (auto entry = known.begin(); entry != known.end(); ++entry) {
        EXPECT_EQ(pictureFormatForExtension(entry.key()), entry.value()) << qPrintable(entry.key());
    }
    for (const char* unknown : {"", ".jpg", "jpe", "webp", "jpg ", "heic"}) {
        EXPECT_EQ(pictureFormatForExtension(QLatin1String(unknown).toString()), std::nullopt) << unknown;
    }
}

// Odd widths leave padding in rows and parts of blocks; the tall one takes more than one strip or band.
TEST(EncodePicture, ReadsBackAsWhatWasWritten) {
    struct Row {
        PictureFormat format;
        double opaqueError;
        double alphaError;
        bool keepsAlpha;
    };
    const Row rows[] = {
        {F::Jpeg, 5.0, 5.0, false},     {F::Png, 0.0, 0.0, true},
        {F::Tiff, 0.0, 0.0, true},      {F::Bmp, 0.0, 0.0, false},  // a palette of 256 for a scene, dithered
        {F::Gif, 12.0, INFINITY, true},
    };
    for (const Row& row : rows) {
        for (const QSize size : {QSize(1, 1), QSize(3, 5), QSize(257, 131), QSize(301, 1200)}) {
            SCOPED_TRACE(::testing::Message()
                         << "format " << static_cast<int>(row.format) << " width " << size.width());
            const EncodeOptions options{.jpegQuality = 95};
            const QImage opaque = drawnScene(size);
            EXPECT_LE(difference(readBack(encoded(opaque, row.format, options)), opaque), row.opaqueError);
            const QImage alpha = drawnSceneWithAlpha(size);
            const QImage result = readBack(encoded(alpha, row.format, options));
            EXPECT_LE(difference(result, row.keepsAlpha ? alpha : onWhite(alpha)), row.alphaError);
            if (size.width() > 3) {
                EXPECT_EQ(result.hasAlphaChannel(), row.keepsAlpha);
            }
        }
    }
}

TEST(EncodePicture, TakesPicturesOfOtherKindsToo) {
    QImage grey(9, 7, QImage::Format_Grayscale8);
    grey.fill(77);
    QImage straight(9, 7, QImage::Format_ARGB32);
    straight.fill(QColor(200, 100, 50, 128));
    EXPECT_EQ(readBack(encoded(grey, F::Png)).pixel(3, 3), qRgb(77, 77, 77));
    EXPECT_EQ(readBack(encoded(straight, F::Png)).format(), QImage::Format_ARGB32_Premultiplied);
}

TEST(EncodePicture, RecordsSizeResolutionAndCompressionForOtherPrograms) {
    using Tags = QMap<QString, QString>;
    const auto expectTags = [](const QByteArray& bytes, const Tags& expected) {
        const Tags found = tagsOf(bytes);
        for (auto tag = expected.begin(); tag != expected.end(); ++tag) {
            EXPECT_EQ(found.value(tag.key()), tag.value()) << qPrintable(tag.key());
        }
    };
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    const EncodeOptions options{.jpegQuality = 90, .dpiX = 300, .dpiY = 150};
    const QImage opaque = drawnScene({64, 48});
    const QImage alpha = drawnSceneWithAlpha({64, 48});
    const Tags perInch = {{text("ImageSize"), text("64x48")},
                          {text("XResolution"), text("300")},
                          {text("YResolution"), text("150")},
                          {text("ResolutionUnit"), text("inches")}};
    const Tags perMetre = {{text("ImageSize"), text("64x48")},
                           {text("PixelsPerUnitX"), text("11811")},
                           {text("PixelsPerUnitY"), text("5906")}};
    expectTags(encoded(opaque, F::Jpeg, options), perInch);
    expectTags(encoded(opaque, F::Tiff, options), perInch);
    expectTags(encoded(alpha, F::Tiff, options),
               {{text("SamplesPerPixel"), text("4")}, {text("ExtraSamples"), text("Unassociated Alpha")}});
    expectTags(encoded(opaque, F::Png, options), perMetre);
    expectTags(encoded(alpha, F::Png, options), {{text("ColorType"), text("RGB with Alpha")}});
    expectTags(encoded(alpha, F::Bmp, options), {{text("ImageSize"), text("64x48")},
                                                 {text("PixelsPerMeterX"), text("11811")},
                                                 {text("PixelsPerMeterY"), text("5906")}});
    expectTags(encoded(alpha, F::Gif, options),
               {{text("FileType"), text("GIF")}, {text("ImageSize"), text("64x48")}});
    for (const PictureFormat format : {F::Jpeg, F::Png, F::Tiff, F::Bmp}) {
        const Result<Picture> picture = decodePicture(encoded(opaque, format, options));
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->dpiX, 300.0);
        EXPECT_EQ(picture->dpiY, 150.0);
    }
}

TEST(EncodePicture, KeepsColouredDetailWholeFromQuality90On) {
    QImage stripes(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x)
            stripes.setPixel(x, y, x % 2 == 0 ? qRgb(230, 30, 30) : qRgb(40, 60, 220));
    }
    const auto sampling = [&](int quality) {
        return tagsOf(
            encoded(stripes, F::Jpeg, {.jpegQuality = quality}))[QStringLiteral("YCbCrSubSampling")];
    };
    EXPECT_THAT(sampling(89).toStdString(), HasSubstr("4:2:0"));
    EXPECT_THAT(sampling(90).toStdString(), HasSubstr("4:4:4"));
    EXPECT_LT(difference(readBack(encoded(stripes, F::Jpeg, {.jpegQuality = 90})), stripes), 8.0);

    const QImage scene = drawnScene({300, 200});
    qsizetype smaller = 0;
    for (const int quality : {0, 10, 50, 80, 95, 100}) {
        const QByteArray bytes = encoded(scene, F::Jpeg, {.jpegQuality = quality});
        EXPECT_GT(bytes.size(), smaller) << quality;
        smaller = bytes.size();
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
        QImage picture(64, 40, QImage::Format_RGB32);
        for (int i = 0; i < 64 * 40; ++i) {
            const int k = i % colours;
            picture.setPixel(i % 64, i / 64, qRgb(k * 37 % 256, k, 255 - k));
        }
        EXPECT_EQ(difference(readBack(encoded(picture, F::Gif)), picture), 0.0) << colours;
    }
    const QImage alpha = drawnSceneWithAlpha({200, 150});
    const QImage result = readBack(encoded(alpha, F::Gif));
    double error = 0;
    int there = 0;
    for (int y = 0; y < 150; ++y) {
        for (int x = 0; x < 200; ++x) {
            const QRgb wanted = pixelRow(alpha, y)[x];
            const QRgb found = pixelRow(result, y)[x];
            ASSERT_EQ(qAlpha(found), qAlpha(wanted) >= 128 ? 255 : 0) << x << ' ' << y;
            if (qAlpha(found) == 0) continue;
            error += std::abs(qGreen(found) - qGreen(qUnpremultiply(wanted)));
            ++there;
        }
    }
    EXPECT_LT(error / there, 10.0);
}

}  // namespace
}  // namespace zelto
