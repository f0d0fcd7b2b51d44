// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/plugin_decoder.h"

#include "pictures/picture_writer.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace zelto {
namespace {

QByteArray saved(const QImage& picture, const char* format) {
    QBuffer buffer;
    EXPECT_TRUE(picture.save(&buffer, format)) << format;
    return buffer.data();
}

TEST(PluginDecoder, EveryKindOfPixelArrivesAsTheSameColours) {
    const QImage opaque = drawnScene({131, 70});
    const QImage clear = drawnSceneWithAlpha({131, 70}).convertToFormat(QImage::Format_ARGB32);
    struct Row {
        QImage stored;
        std::vector<const char*> formats;
    };
    for (const Row& row : {
             Row{opaque, {"png", "tiff", "bmp"}},
             Row{opaque.convertToFormat(QImage::Format_Indexed8), {"png", "tiff", "bmp"}},
             Row{opaque.convertToFormat(QImage::Format_Mono), {"png", "tiff", "bmp"}},
             Row{opaque.convertToFormat(QImage::Format_Grayscale8), {"png", "tiff", "bmp"}},
             Row{opaque.convertToFormat(QImage::Format_Grayscale16), {"png", "tiff"}},
             Row{opaque.convertToFormat(QImage::Format_RGBX64), {"png", "tiff"}},
             Row{clear, {"png", "tiff"}},
             Row{clear.convertToFormat(QImage::Format_Indexed8), {"png"}},
             Row{clear.convertToFormat(QImage::Format_RGBA64), {"png", "tiff"}},
         }) {
        const bool hasAlpha = row.stored.hasAlphaChannel();
        const QImage::Format kind = hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        for (const char* format : row.formats) {
            const Result<Picture> picture = decodePicture(saved(row.stored, format));
            ASSERT_TRUE(picture) << format << row.stored.format();
            EXPECT_EQ(picture->image.format(), kind) << format << row.stored.format();
            // One level where sixteen bits or a premultiplied colour had to be rounded.
            const int tolerance = row.stored.depth() == 16 || row.stored.depth() == 64 || hasAlpha ? 1 : 0;
            EXPECT_LE(largestDifference(picture->image, row.stored.convertToFormat(kind)), tolerance)
                << format << row.stored.format();
        }
    }
}

TEST(PluginDecoder, SixteenBitsAreRoundedNotCutOff) {
    QImage wide(1, 1, QImage::Format_RGBX64);
    wide.setPixelColor(0, 0, QRgba64::fromRgba64(127 * 257 + 130, 0xFF7F, 120, 0xFFFF));
    for (const char* format : {"png", "tiff"}) {
        const QImage picture = decodePicture(saved(wide, format)).value_or(Picture()).image;
        EXPECT_EQ(picture.pixel(0, 0), qRgb(128, 255, 0)) << format;
    }
}

TEST(PluginDecoder, ResolutionIsWhatTheFileRecords) {
    const QImage scene = drawnScene({40, 30});
    const auto pngWith = [&](const QByteArray& dotsPerMeter) {
        QByteArray png = encodePicture(scene, PictureFormat::Png, {}).value();
        const qsizetype written = png.indexOf("pHYs") - 4;
        return withPngChunk(png.remove(written, 21), "pHYs", dotsPerMeter);
    };
    const auto encoded = [&](PictureFormat format, double dpiX, double dpiY) {
        return encodePicture(scene, format, {.dpiX = dpiX, .dpiY = dpiY}).value();
    };
    QByteArray silentPng = pngWith("");
    silentPng.remove(33, 12);
    QByteArray silentBmp = encoded(PictureFormat::Bmp, 72.0, 72.0);
    silentBmp.replace(38, 8, QByteArray(8, '\0'));
    struct Row {
        const char* name;
        QByteArray file;
        double dpiX, dpiY;
    };
    for (const Row& row : {
             Row{"png without", silentPng, 72.0, 72.0},
             Row{"png, whole inches", pngWith(QByteArray("\0\0\x0B\x13\0\0\x2E\x23\1", 9)), 72.0, 300.0},
             Row{"png, the screen's 96", pngWith(QByteArray("\0\0\x0E\xC4\0\0\x0E\xC4\1", 9)), 96.0, 96.0},
             Row{"png, proportions only", pngWith(QByteArray("\0\0\x0B\x13\0\0\x2E\x23\0", 9)), 72.0, 72.0},
             Row{"bmp without", silentBmp, 72.0, 72.0},
             Row{"bmp", encoded(PictureFormat::Bmp, 300.0, 150.0), 300.0, 150.0},
             Row{"tiff", encoded(PictureFormat::Tiff, 240.0, 120.5), 240.0, 120.5},
             Row{"gif has none", encoded(PictureFormat::Gif, 300.0, 300.0), 72.0, 72.0},
         }) {
        const Result<Picture> picture = decodePicture(row.file);
        ASSERT_TRUE(picture) << row.name;
        EXPECT_NEAR(picture->dpiX, row.dpiX, 0.001) << row.name;
        EXPECT_NEAR(picture->dpiY, row.dpiY, 0.001) << row.name;
    }
}

}  // namespace
}  // namespace zelto
