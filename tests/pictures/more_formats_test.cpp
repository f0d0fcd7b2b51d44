// SPDX-License-Identifier: GPL-3.0-or-later
// HEIC, AVIF, WebP, JPEG XL and raw previews, as other programs write and read them: heif-enc and heif-convert, avifenc
// and avifdec, cwebp and dwebp, cjxl and djxl, exiftool.
#include "pictures/picture_libraries.h"
#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"
#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "support/color_difference.h"
#include "support/ink.h"
#include "support/run_program.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <tiffio.h>

#include <cstdlib>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

class MoreFormats : public testing::Test {
  protected:
    QString path(const QString& name) const { return folder_.filePath(name); }

    // Runs "PROGRAM ARGUMENT...", with "@" in the place of the test's folder.
    void run(const char* command) const {
        QStringList words = QString::fromLatin1(command).split(u' ');
        for (QString& word : words) word.replace(u'@', folder_.path());
        const ProgramRun done = runProgram(words.takeFirst(), words);
        ASSERT_EQ(done.exitStatus, 0) << command << done.errors.constData();
    }

    Picture read(const char* name) const {
        const Result<Picture> picture = readPicture(path(QLatin1String(name)));
        EXPECT_TRUE(picture) << name;
        return picture.value_or(Picture());
    }

    void write(const char* name, const QByteArray& bytes) const {
        ASSERT_TRUE(writeWholeFile(path(QLatin1String(name)), bytes)) << name;
    }

    QTemporaryDir folder_;
};

double meanDifference(const QImage& a, const QImage& b) {
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    }
    return sum / (a.width() * a.height());
}

// Patches of 32 pixels, all of them colours that sRGB has, and what they are in `space`.
QImage patches() {
    return pictureOf({192, 128}, QImage::Format_RGB32, [](int x, int y) {
        const int i = x / 32 + 6 * (y / 32);
        return qRgb(60 + i * 67 % 150, 60 + i * 113 % 150, 60 + i * 29 % 150);
    });
}

double worstPatch(const QImage& picture, const QImage& wanted) {
    double worst = 0.0;
    for (int y = 16; y < wanted.height(); y += 32) {
        for (int x = 16; x < wanted.width(); x += 32)
            worst = std::max(worst, ciede2000(picture.pixel(x, y), wanted.pixel(x, y)));
    }
    return worst;
}

TEST_F(MoreFormats, DisplayP3OfOtherProgramsIsRightToADifferenceNobodySees) {
    const QColorSpace p3(QColorSpace::DisplayP3);
    QImage wide = patches().convertToFormat(QImage::Format_RGBX64);
    wide.setColorSpace(QColorSpace::SRgb);
    wide.convertToColorSpace(p3);
    QImage narrow = wide.convertToFormat(QImage::Format_RGB32);
    ASSERT_TRUE(wide.save(path(u"wide.png"_s)) && narrow.save(path(u"narrow.png"_s)));
    narrow.setColorSpace({});
    ASSERT_TRUE(narrow.save(path(u"plain.png"_s)));
    struct Row {
        const char* library;
        const char* file;
        const char* command;
        const char* shown = nullptr;  // a command that makes shown.png of the file
    };
    for (
        const Row& row : {
            // heif-enc rounds to eight bits of luma and chroma, whatever it is told: what it has written is what counts.
            Row{heifLibrary(), "icc.heic", "heif-enc -L -p chroma=444 @/narrow.png -o @/icc.heic",
                "heif-convert @/icc.heic @/shown.png"},
            Row{heifLibrary(), "ten.heic", "heif-enc -q 98 -b 10 -p chroma=444 @/wide.png -o @/ten.heic"},
            Row{heifLibrary(), "icc.avif", "avifenc -s 10 --lossless @/narrow.png @/icc.avif"},
            Row{heifLibrary(), "coded.avif",
                "avifenc -s 10 -d 10 -y 444 --min 0 --max 4 --cicp 12/13/1 @/plain.png @/coded.avif"},
            Row{heifLibrary(), "twelve.avif",
                "avifenc -s 10 -d 12 --min 0 --max 4 --cicp 12/13/9 @/plain.png @/twelve.avif"},
            Row{webpLibrary(), "icc.webp", "cwebp -quiet -lossless -metadata icc @/narrow.png -o @/icc.webp"},
            Row{jxlLibrary(), "lossless.jxl", "cjxl -d 0 -e 3 @/narrow.png @/lossless.jxl"},
            Row{jxlLibrary(), "lossy.jxl", "cjxl -d 0.3 -e 3 @/wide.png @/lossy.jxl"},
        }) {
        if (row.library == nullptr) continue;
        run(row.command);
        const QImage picture = read(row.file).image;
        ASSERT_EQ(picture.size(), wide.size()) << row.file;
        QImage wanted = patches();
        if (row.shown != nullptr) {
            run(row.shown);
            wanted = QImage(path(u"shown.png"_s));
            ASSERT_EQ(wanted.colorSpace().primaries(), QColorSpace::Primaries::DciP3D65) << row.file;
            wanted.convertToColorSpace(QColorSpace::SRgb);
        }
        EXPECT_LT(worstPatch(picture, wanted), 1.0) << row.file;
    }
}

TEST_F(MoreFormats, TurnsAlphaAndResolutionOfOtherProgramsArriveAsTheyAreMeant) {
    const QImage clear = drawnSceneWithAlpha({97, 66});
    ASSERT_TRUE(clear.save(path(u"clear.png"_s)));
    const QImage upright = drawnScene({96, 64});
    write("turned.jpg", jpegBytes(upright, {.quality = 100, .orientation = 6, .exifDpi = 300}));
    const QImage seen = read("turned.jpg").image;
    ASSERT_EQ(seen.size(), QSize(64, 96));
    ASSERT_TRUE(upright.save(path(u"upright.png"_s)));
    struct Row {
        const char* library;
        const char* file;
        const char* command;
        const QImage& wanted;
        int tolerance;  // levels
        const char* command2 = nullptr;
    };
    constexpr int Lossy = 24;  // of single pixels at the drawing's hard edges
    for (const Row& row : {
             Row{webpLibrary(), "c.webp", "cwebp -quiet -exact -lossless @/clear.png -o @/c.webp", clear, 1},
             Row{jxlLibrary(), "c.jxl", "cjxl -d 0 -e 3 @/clear.png @/c.jxl", clear, 1},
             Row{heifLibrary(), "c.avif", "avifenc -s 10 --lossless @/clear.png @/c.avif", clear, 2},
             Row{heifLibrary(), "c.heic",
                 "heif-enc -L -p chroma=444 --matrix_coefficients=0 @/clear.png -o @/c.heic", clear, 2},
             Row{jxlLibrary(), "t.jxl", "cjxl -e 3 @/turned.jpg @/t.jxl", seen, 6},
             Row{webpLibrary(), "t.webp", "cwebp -quiet -lossless @/upright.png -o @/t.webp", seen, 6,
                 "exiftool -q -overwrite_original -n -Orientation=6 -XResolution=300 -YResolution=300 "
                 "@/t.webp"},
             Row{heifLibrary(), "t.avif", "avifenc -s 10 --min 0 --max 4 --irot 3 @/upright.png @/t.avif",
                 seen, Lossy,
                 "exiftool -q -overwrite_original -n -XResolution=300 -YResolution=300 @/t.avif"},
         }) {
        if (row.library == nullptr) continue;
        run(row.command);
        if (row.command2 != nullptr) run(row.command2);
        const Picture picture = read(row.file);
        ASSERT_EQ(picture.image.size(), row.wanted.size()) << row.file;
        EXPECT_EQ(picture.image.hasAlphaChannel(), row.wanted.hasAlphaChannel()) << row.file;
        EXPECT_LE(largestDifference(picture.image, row.wanted), row.tolerance) << row.file;
        EXPECT_NEAR(picture.dpiX, row.wanted.hasAlphaChannel() ? 72.0 : 300.0, 0.01) << row.file;
        const Result<PictureNeeds> needs = readPictureNeeds(path(QLatin1String(row.file)));
        EXPECT_TRUE(needs && needs->dpiX == picture.dpiX && needs->size == picture.image.size()) << row.file;
    }
}

TEST_F(MoreFormats, WhatIsWrittenIsReadByOtherPrograms) {
    struct Row {
        const char* library;
        PictureFormat format;
        const char* file;
        const char* command;
        bool losslessAt100;
    };
    for (const Row& row : {
             Row{webpLibrary(), PictureFormat::Webp, "a.webp", "dwebp -quiet @/a.webp -o @/a.png", true},
             Row{heifLibrary(), PictureFormat::Avif, "a.avif", "avifdec @/a.avif @/a.png", true},
             Row{jxlLibrary(), PictureFormat::Jxl, "a.jxl", "djxl --quiet @/a.jxl @/a.png", true},
             Row{heifLibrary(), PictureFormat::Heic, "a.heic", "heif-convert @/a.heic @/a.png", false},
         }) {
        if (row.library == nullptr) continue;
        for (const QImage& picture : {drawnScene({131, 70}), drawnSceneWithAlpha({130, 71})}) {
            qsizetype bytesBefore = 0;
            for (const int quality : {5, 60, 95, 100}) {
                const Result<QByteArray> file = encodePicture(picture, row.format, {.quality = quality});
                ASSERT_TRUE(file) << row.file << qPrintable(file.error().message);
                EXPECT_GE(file->size(), bytesBefore) << row.file << quality;
                bytesBefore = file->size();
                write(row.file, *file);
                run(row.command);
                const QImage again = QImage(path(u"a.png"_s));
                ASSERT_EQ(again.size(), picture.size()) << row.file;
                EXPECT_EQ(again.hasAlphaChannel(), picture.hasAlphaChannel()) << row.file;
                const QImage seen = again.convertToFormat(picture.format());
                if (quality == 100 && row.losslessAt100) {
                    EXPECT_LE(largestDifference(seen, picture), picture.hasAlphaChannel() ? 1 : 0)
                        << row.file;
                } else if (quality == 95) {
                    EXPECT_LT(meanDifference(seen, picture), 4.0) << row.file;
                }
            }
        }
    }
}

// A DNG as libtiff writes it: a JPEG preview, and below it sensor data of 64 by 64 pixels, taken with the camera on its
// side.
QByteArray dngBytes(QSize size, const QByteArray& preview) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    TIFF* const tiff = TIFFOpen(qPrintable(file.fileName()), "wl");
    const auto writeDirectory = [&](QSize pixels, int bits, int compression, int photometric, int samples,
                                    QByteArray strip) {
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, pixels.width());
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, pixels.height());
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, pixels.height());
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, bits);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, compression);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, photometric);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, samples);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        if (!strip.isEmpty()) TIFFWriteRawStrip(tiff, 0, strip.data(), strip.size());
        EXPECT_EQ(TIFFWriteDirectory(tiff), 1);
    };
    const toff_t below[] = {0};
    TIFFSetField(tiff, TIFFTAG_SUBFILETYPE, FILETYPE_REDUCEDIMAGE);
    TIFFSetField(tiff, TIFFTAG_MAKE, "Acme");
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_RIGHTTOP);
    TIFFSetField(tiff, TIFFTAG_DNGVERSION, "\1\4\0\0");
    TIFFSetField(tiff, TIFFTAG_SUBIFD, 1, below);
    writeDirectory(size, 8, COMPRESSION_JPEG, PHOTOMETRIC_YCBCR, 3, preview);
    const std::uint16_t cells[] = {2, 2};
    TIFFSetField(tiff, TIFFTAG_CFAREPEATPATTERNDIM, cells);
    TIFFSetField(tiff, TIFFTAG_CFAPATTERN, 4, "\0\1\1\2");  // red, green, green, blue
    writeDirectory({64, 64}, 16, COMPRESSION_NONE, PHOTOMETRIC_CFA, 1, QByteArray(64 * 64 * 2, ' '));
    TIFFClose(tiff);
    return file.readAll();
}

TEST_F(MoreFormats, ARawFileIsItsPreviewAsTheCameraWasHeld) {
    if (rawLibrary() == nullptr) GTEST_SKIP();
    const QImage scene = drawnScene({90, 60});
    write("photo.dng", dngBytes(scene.size(), jpegBytes(scene, {.quality = 100})));
    write("own.dng", dngBytes(scene.size(), jpegBytes(scene, {.quality = 100, .orientation = 3})));
    const QString dng = path(u"photo.dng"_s);
    EXPECT_TRUE(read("photo.dng").isRawPreview);
    EXPECT_EQ(readPictureSize(dng).value_or(QSize()), QSize(60, 90));
    write("turned.jpg", jpegBytes(scene, {.quality = 100, .orientation = 6}));
    EXPECT_EQ(largestDifference(read("photo.dng").image, read("turned.jpg").image), 0);
    write("turned.jpg", jpegBytes(scene, {.quality = 100, .orientation = 3}));
    EXPECT_EQ(largestDifference(read("own.dng").image, read("turned.jpg").image), 0);
    EXPECT_FALSE(read("turned.jpg").isRawPreview);
    write("none.dng", dngBytes(scene.size(), {}));
    EXPECT_FALSE(readPicture(path(u"none.dng"_s)));
}

}  // namespace
}  // namespace zelto
