// SPDX-License-Identifier: GPL-3.0-or-later
// Orientation in every format that can record one.
#include "platform/upright.h"

#include "platform/picture_reader.h"
#include "platform/picture_writer.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QTemporaryFile>
#include <QTransform>
#include <QtEndian>

#include <gtest/gtest.h>
#include <tiffio.h>

namespace zelto {
namespace {

constexpr QSize Stored(150, 96);  // more rows than a band, and not a multiple of one

QByteArray littleEndian(quint32 value, int count) {
    const quint32 stored = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char*>(&stored), count);
}

// What a viewer sees of `stored`, by Qt's own mirroring and turning.
QImage seen(const QImage& stored, int orientation) {
    const QImage mirrored = stored.mirrored(true, false);
    const auto turned = [](const QImage& picture, int degrees) {
        return picture.transformed(QTransform().rotate(degrees));
    };
    switch (orientation) {
        case 2:
            return mirrored;
        case 3:
            return turned(stored, 180);
        case 4:
            return turned(mirrored, 180);
        case 5:
            return turned(mirrored, 270);
        case 6:
            return turned(stored, 90);
        case 7:
            return turned(mirrored, 90);
        case 8:
            return turned(stored, 270);
        default:
            return stored;
    }
}

QByteArray exifOf(int orientation) {
    return exifBytes({.orientation = orientation});
}

QByteArray jpegFile(const QImage& picture, int orientation) {
    return jpegBytes(picture, {.orientation = orientation});
}

QByteArray pngFile(const QImage& picture, int orientation) {
    return withPngChunk(encodePicture(picture, PictureFormat::Png, {}).value(), "eXIf", exifOf(orientation));
}

QByteArray tiffFile(const QImage& picture, int orientation) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    file.write(encodePicture(picture, PictureFormat::Tiff, {}).value());
    file.close();
    TIFF* tiff = TIFFOpen(qPrintable(file.fileName()), "r+");
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, orientation);
    TIFFRewriteDirectory(tiff);
    TIFFClose(tiff);
    EXPECT_TRUE(file.open());
    return file.readAll();
}

QByteArray webpFile(const QImage& picture, int orientation) {
    QBuffer buffer;
    picture.save(&buffer, "webp", 100);
    const QByteArray exif = exifOf(orientation);
    constexpr quint32 HasExif = 8;
    QByteArray chunks = "WEBP" + ("VP8X" + littleEndian(10, 4)) + littleEndian(HasExif, 4) +
                        littleEndian(quint32(picture.width() - 1), 3) +
                        littleEndian(quint32(picture.height() - 1), 3) + buffer.data().sliced(12) + "EXIF" +
                        littleEndian(quint32(exif.size()), 4) + exif;
    if (exif.size() % 2 != 0) chunks += '\0';
    return "RIFF" + littleEndian(quint32(chunks.size()), 4) + chunks;
}

TEST(Upright, EveryOrientationOfEveryFormatIsTurned) {
    const QImage scene = drawnScene(Stored);
    struct Format {
        const char* name;
        QByteArray (*file)(const QImage&, int);
    };
    for (const Format& format : {Format{"jpeg", jpegFile}, Format{"png", pngFile}, Format{"tiff", tiffFile},
                                 Format{"webp", webpFile}}) {
        const QImage stored = decodePicture(format.file(scene, 1)).value_or(Picture()).image;
        ASSERT_EQ(stored.size(), Stored) << format.name;
        ASSERT_LE(largestDifference(stored, scene), 40) << format.name;  // lossy coding of the scene's edges
        for (int orientation = 1; orientation <= 8; ++orientation) {
            const Result<Picture> picture = decodePicture(format.file(scene, orientation));
            ASSERT_TRUE(picture) << format.name << orientation;
            EXPECT_EQ(largestDifference(picture->image, seen(stored, orientation)), 0)
                << format.name << orientation;
        }
    }
}

TEST(Upright, OrientationsThatDoNotExistLeaveThePictureAsItIs) {
    const QImage scene = drawnScene(Stored);
    for (const int orientation : {0, 9, 77, -1}) {
        EXPECT_EQ(uprightSize(Stored, orientation), Stored);
        EXPECT_EQ(largestDifference(uprightPicture(scene, orientation), scene), 0);
    }
    EXPECT_EQ(decodePicture(jpegFile(scene, 9)).value_or(Picture()).image.size(), Stored);
}

}  // namespace
}  // namespace zelto
