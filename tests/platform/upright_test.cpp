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
    // Whether the picture is mirrored first, and by how many degrees it is turned then.
    static constexpr std::pair<bool, int> Turns[] = {{false, 0},  {true, 0},   {false, 180}, {true, 180},
                                                     {true, 270}, {false, 90}, {true, 90},   {false, 270}};
    const auto [isMirrored, degrees] = Turns[orientation - 1];
    return stored.mirrored(isMirrored, false).transformed(QTransform().rotate(degrees));
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
    for (const auto& [name, file] : {std::pair{"jpeg", &jpegFile}, std::pair{"png", &pngFile},
                                     std::pair{"tiff", &tiffFile}, std::pair{"webp", &webpFile}}) {
        const QImage stored = decodePicture(file(scene, 1)).value_or(Picture()).image;
        ASSERT_LE(largestDifference(stored, scene), 40) << name;  // lossy coding of the scene's edges
        for (int orientation = 1; orientation <= 8; ++orientation) {
            const QImage picture = decodePicture(file(scene, orientation)).value_or(Picture()).image;
            EXPECT_EQ(largestDifference(picture, seen(stored, orientation)), 0) << name << orientation;
        }
    }
}

TEST(Upright, OrientationsThatDoNotExistLeaveThePictureAsItIs) {
    const QImage scene = drawnScene(Stored);
    for (const int orientation : {0, 9, 77, -1}) {
        EXPECT_EQ(uprightSize(Stored, orientation), Stored);
        EXPECT_EQ(largestDifference(uprightPicture(scene, orientation), scene), 0);
    }
}

}  // namespace
}  // namespace zelto
