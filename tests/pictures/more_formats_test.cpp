// SPDX-License-Identifier: GPL-3.0-or-later
// HEIC, AVIF, WebP, JPEG XL and raw previews, as other programs write and read them: heif-enc and heif-convert, avifenc
// and avifdec, cwebp and dwebp, cjxl and djxl, exiftool.
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
#include <QtEndian>

#include <gtest/gtest.h>

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

double worstPatch(const QImage& picture) {
    double worst = 0.0;
    const QImage wanted = patches();
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
        const char* file;
        const char* command;
        double limit = 1.0;
    };
    // Eight bits of luma and chroma round a colour by up to a level in each channel before it is converted.
    constexpr double Rounded = 2.0;
    for (const Row& row : {
             Row{"icc.heic", "heif-enc -L -p chroma=444 --matrix_coefficients=0 @/narrow.png -o @/icc.heic",
                 Rounded},
             Row{"ten.heic", "heif-enc -q 98 -b 10 -p chroma=444 @/wide.png -o @/ten.heic"},
             Row{"icc.avif", "avifenc -s 10 --lossless @/narrow.png @/icc.avif"},
             Row{"coded.avif", "avifenc -s 10 --min 0 --max 4 --cicp 12/13/1 @/plain.png @/coded.avif",
                 Rounded},
             Row{"twelve.avif",
                 "avifenc -s 10 -d 12 --min 0 --max 4 --cicp 12/13/9 @/plain.png @/twelve.avif"},
             Row{"icc.webp", "cwebp -quiet -lossless -metadata icc @/narrow.png -o @/icc.webp"},
             Row{"lossless.jxl", "cjxl -d 0 -e 3 @/narrow.png @/lossless.jxl"},
             Row{"lossy.jxl", "cjxl -d 0.3 -e 3 @/wide.png @/lossy.jxl"},
         }) {
        run(row.command);
        const QImage picture = read(row.file).image;
        ASSERT_EQ(picture.size(), wide.size()) << row.file;
        EXPECT_LT(worstPatch(picture), row.limit) << row.file;
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
        const char* file;
        const char* command;
        const QImage& wanted;
        int tolerance;  // levels
        const char* command2 = nullptr;
    };
    constexpr int Lossy = 24;  // of single pixels at the drawing's hard edges
    for (const Row& row : {
             Row{"c.webp", "cwebp -quiet -exact -lossless @/clear.png -o @/c.webp", clear, 1},
             Row{"c.jxl", "cjxl -d 0 -e 3 @/clear.png @/c.jxl", clear, 1},
             Row{"c.avif", "avifenc -s 10 --lossless @/clear.png @/c.avif", clear, 2},
             Row{"c.heic", "heif-enc -L -p chroma=444 --matrix_coefficients=0 @/clear.png -o @/c.heic", clear,
                 2},
             Row{"t.jxl", "cjxl -e 3 @/turned.jpg @/t.jxl", seen, 6},
             Row{"t.webp", "cwebp -quiet -lossless @/upright.png -o @/t.webp", seen, 6,
                 "exiftool -q -overwrite_original -n -Orientation=6 -XResolution=300 -YResolution=300 "
                 "@/t.webp"},
             Row{"t.avif", "avifenc -s 10 --min 0 --max 4 --irot 3 @/upright.png @/t.avif", seen, Lossy,
                 "exiftool -q -overwrite_original -n -XResolution=300 -YResolution=300 @/t.avif"},
         }) {
        run(row.command);
        if (row.command2 != nullptr) run(row.command2);
        const Picture picture = read(row.file);
        ASSERT_EQ(picture.image.size(), row.wanted.size()) << row.file;
        EXPECT_EQ(picture.image.hasAlphaChannel(), row.wanted.hasAlphaChannel()) << row.file;
        EXPECT_LE(largestDifference(picture.image, row.wanted), row.tolerance) << row.file;
        EXPECT_NEAR(picture.dpiX, row.wanted.hasAlphaChannel() ? 72.0 : 300.0, 0.01) << row.file;
    }
}

TEST_F(MoreFormats, WhatIsWrittenIsReadByOtherPrograms) {
    struct Row {
        PictureFormat format;
        const char* file;
        const char* command;
        bool losslessAt100;
    };
    for (const Row& row : {
             Row{PictureFormat::Webp, "a.webp", "dwebp -quiet @/a.webp -o @/a.png", true},
             Row{PictureFormat::Avif, "a.avif", "avifdec @/a.avif @/a.png", true},
             Row{PictureFormat::Jxl, "a.jxl", "djxl --quiet @/a.jxl @/a.png", true},
             Row{PictureFormat::Heic, "a.heic", "heif-convert @/a.heic @/a.png", false},
         }) {
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

// The smallest file that is a DNG: sensor data of 64 by 64 pixels, taken with the camera on its side, and a JPEG preview.
QByteArray dngBytes(const QByteArray& preview) {
    struct Entry {
        quint16 tag, type;
        quint32 count, value;
    };
    QByteArray file("II*\0\x08\0\0\0", 8);
    const auto add = [&](auto number) {
        const auto little = qToLittleEndian(number);
        file.append(reinterpret_cast<const char*>(&little), sizeof little);
    };
    constexpr quint32 Entries0 = 13;
    constexpr quint32 Raw = 8 + 2 + Entries0 * 12 + 4;
    constexpr quint32 Entries1 = 11;
    constexpr quint32 Sensor = Raw + 2 + Entries1 * 12 + 4;
    constexpr quint32 SensorBytes = 64 * 64 * 2;
    const quint32 jpeg = Sensor + SensorBytes;
    const auto directory = [&](std::initializer_list<Entry> entries) {
        add(static_cast<quint16>(entries.size()));
        for (const Entry& entry : entries) {
            add(entry.tag);
            add(entry.type);
            add(entry.count);
            add(entry.value);
        }
        add(quint32{0});
    };
    constexpr quint32 RedGreenGreenBlue = 0x02010100;
    directory({{254, 4, 1, 1},
               {256, 4, 1, 90},
               {257, 4, 1, 60},
               {258, 3, 1, 8},
               {259, 3, 1, 7},
               {262, 3, 1, 6},
               {271, 2, 4, 0x656D6341},
               {273, 4, 1, jpeg},
               {274, 3, 1, 6},
               {277, 3, 1, 3},
               {279, 4, 1, static_cast<quint32>(preview.size())},
               {330, 4, 1, Raw},
               {50706, 1, 4, 0x00000401}});
    directory({{254, 4, 1, 0},
               {256, 4, 1, 64},
               {257, 4, 1, 64},
               {258, 3, 1, 16},
               {259, 3, 1, 1},
               {262, 3, 1, 32803},
               {273, 4, 1, Sensor},
               {277, 3, 1, 1},
               {279, 4, 1, SensorBytes},
               {33421, 3, 2, 0x00020002},
               {33422, 1, 4, RedGreenGreenBlue}});
    return file.append(SensorBytes, '\x20').append(preview);
}

TEST_F(MoreFormats, ARawFileIsItsPreviewAsTheCameraWasHeld) {
    const QImage scene = drawnScene({90, 60});
    write("photo.dng", dngBytes(jpegBytes(scene, {.quality = 100})));
    write("own.dng", dngBytes(jpegBytes(scene, {.quality = 100, .orientation = 3})));
    const QString dng = path(u"photo.dng"_s);
    EXPECT_TRUE(read("photo.dng").isRawPreview);
    EXPECT_EQ(readPictureSize(dng).value_or(QSize()), QSize(60, 90));
    write("turned.jpg", jpegBytes(scene, {.quality = 100, .orientation = 6}));
    EXPECT_EQ(largestDifference(read("photo.dng").image, read("turned.jpg").image), 0);
    write("turned.jpg", jpegBytes(scene, {.quality = 100, .orientation = 3}));
    EXPECT_EQ(largestDifference(read("own.dng").image, read("turned.jpg").image), 0);
    EXPECT_FALSE(read("turned.jpg").isRawPreview);
    write("none.dng", dngBytes({}));
    EXPECT_FALSE(readPicture(path(u"none.dng"_s)));
}

}  // namespace
}  // namespace zelto
