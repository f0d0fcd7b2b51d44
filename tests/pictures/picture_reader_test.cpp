// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_reader.h"

#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "support/ink.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QBuffer>
#include <QImageWriter>

#include <sys/resource.h>
#include <sys/stat.h>

namespace zelto {
namespace {

QByteArray written(const QImage& picture, const char* format, int compression = 0) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setCompression(compression);
    EXPECT_TRUE(writer.write(picture)) << format;
    return buffer.data();
}

struct File {
    const char* name;
    QByteArray bytes;
    qsizetype idleBytes = 0;  // at its end, without which every pixel is still certain
};

// One complete file of each kind that is read, all of the same small scene.
std::vector<File> oneOfEachFormat() {
    const QImage scene = drawnScene({120, 90});
    constexpr int Lzw = 1;
    std::vector<File> files{
        {"jpeg", jpegBytes(scene)},
        {"progressive jpeg", jpegBytes(scene, {.progressive = true})},
        {"png", written(scene, "png"), 4},  // the check sum of its empty last chunk
        {"tiff", written(scene, "tiff")},
        {"tiff with lzw", written(scene, "tiff", Lzw)},
        {"tiff with palette", written(scene.convertToFormat(QImage::Format_Indexed8), "tiff")},
        {"gif", encodePicture(scene, PictureFormat::Gif, {}).value()},
        {"bmp", written(scene, "bmp")},
        {"bmp with palette", written(scene.convertToFormat(QImage::Format_Indexed8), "bmp")}};
    for (const char* name : {"webp", "heic", "avif", "jxl"}) {
        const auto format = pictureFormatForExtension(QString::fromLatin1(name));
        if (format) files.push_back({name, encodePicture(scene, *format, {}).value()});
    }
    return files;
}

TEST(PictureReader, AFileCutShortAnywhereIsDamaged) {
    for (const File& file : oneOfEachFormat()) {
        const Result<Picture> whole = decodePicture(file.bytes);
        ASSERT_TRUE(whole) << file.name;
        EXPECT_EQ(whole->image.size(), QSize(120, 90)) << file.name;
        const qsizetype end = file.bytes.size() - file.idleBytes;
        const qsizetype step = std::max<qsizetype>(end / 40, 1);
        for (qsizetype length = 0; length < end; length += length + 30 < end && length > 40 ? step : 1) {
            const Result<Picture> cut = decodePicture(file.bytes.first(length));
            ASSERT_FALSE(cut) << file.name << " of " << file.bytes.size() << " bytes cut to " << length;
            EXPECT_EQ(cut.error().message, QString(DamagedPictureMessage));
        }
    }
}

// Overwrites bytes of a small file so that its header promises a picture of gigabytes, or of nothing at all.
QByteArray patched(QByteArray bytes, qsizetype at, const QByteArray& with) {
    return bytes.replace(at, with.size(), with);
}

TEST(PictureReader, WhatNoMachineOrPhotoNeedsIsRefusedInWordsAndWithoutMemory) {
    const QImage scene = drawnScene({64, 64});
    const QByteArray jpeg = jpegBytes(scene);
    const QByteArray progressive = jpegBytes(scene, {.progressive = true});
    const QByteArray png = written(scene, "png");
    const QByteArray bmp = written(scene, "bmp");
    const QByteArray gif = encodePicture(scene, PictureFormat::Gif, {}).value();
    const QByteArray idle(200'000, '\0');
    struct Row {
        File file;
        const char* words;
    };
    const char* const damaged = "may be damaged";
    const char* const memory = "MB of memory";
    const std::vector<Row> rows = {
        {{"jpeg of 65500 x 16000", patched(jpeg, jpeg.indexOf(QByteArrayLiteral("\xFF\xC0")) + 5,
                                           QByteArrayLiteral("\x3E\x80\xFF\xDC"))},
         damaged},
        {{"jpeg of 15000 x 15000 whose scans are all kept",
          patched(progressive, progressive.indexOf(QByteArrayLiteral("\xFF\xC2")) + 5,
                  QByteArrayLiteral("\x3A\x98\x3A\x98")) +
              idle},
         memory},
        {{"png of 30000 x 30000",
          patched(png, 16, QByteArrayLiteral("\0\0\x75\x30\0\0\x75\x30\1\0\0\0\0\x4E\x5C\xC5\x17")) + idle},
         memory},
        {{"gif canvas of 65535 x 65535", patched(gif, 6, QByteArrayLiteral("\xFF\xFF\xFF\xFF"))}, damaged},
        {{"gif canvas of 20000 x 20000", patched(gif, 6, QByteArrayLiteral("\x20\x4E\x20\x4E")) + idle},
         memory},
        {{"bmp of 30000 x 30000", patched(bmp, 18, QByteArrayLiteral("\x30\x75\x00\x00\x30\x75\x00\x00"))},
         damaged},
        {{"bmp of 0 x 64", patched(bmp, 18, QByteArrayLiteral("\x00\x00\x00\x00\x40\x00\x00\x00"))}, damaged},
        {{"bmp of the lowest height", patched(bmp, 22, QByteArrayLiteral("\x00\x00\x00\x80"))}, damaged},
        {{"drawing", "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg'/>"}, "is a drawing"},
        {{"kind that some plugin would read", "P6 2 2 255\n" + QByteArray(12, 'x')}, damaged}};
    rusage before{};
    getrusage(RUSAGE_SELF, &before);
    for (const Row& row : rows) {
        const Result<Picture> picture = decodePicture(row.file.bytes);
        ASSERT_FALSE(picture) << row.file.name;
        EXPECT_EQ(picture.error().code, ErrorCode::Damaged) << row.file.name;
        EXPECT_TRUE(picture.error().message.contains(QLatin1String(row.words)))
            << row.file.name << ": " << qPrintable(picture.error().message);
    }
    rusage after{};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 200 * 1024) << "KiB";
}

TEST(PictureReader, TellsAMissingFileFromOneThatCannotBeRead) {
    const QTemporaryDir folder;
    const QString empty = folder.filePath(QStringLiteral("empty.jpg"));
    ASSERT_TRUE(writeWholeFile(empty, {}));
    const QString missing = folder.filePath(QStringLiteral("missing.jpg"));
    EXPECT_EQ(readPicture(missing).error().code, ErrorCode::NotFound);
    EXPECT_EQ(readPictureSize(missing).error().code, ErrorCode::NotFound);
    const QString pipe = folder.filePath(QStringLiteral("pipe.jpg"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {folder.path(), empty, pipe, QStringLiteral("/dev/zero")}) {
        const Result<Picture> picture = readPicture(path);
        ASSERT_FALSE(picture);
        EXPECT_EQ(picture.error().code, ErrorCode::Damaged);
        EXPECT_EQ(picture.error().path, path);
        EXPECT_EQ(readPictureSize(path).error().code, ErrorCode::Damaged);
    }
}

TEST(PictureReader, SizeIsThatOfTheUprightPictureWhateverTheFileIsCalled) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("photo.gif"));
    std::vector<File> files = oneOfEachFormat();
    files.push_back({"turned", jpegBytes(drawnScene({90, 120}), {.orientation = 6})});
    for (const File& file : files) {
        ASSERT_TRUE(writeWholeFile(path, file.bytes));
        EXPECT_EQ(readPictureSize(path).value_or(QSize()), QSize(120, 90)) << file.name;
        const QImage read = readPicture(path).value_or(Picture()).image;
        EXPECT_EQ(largestDifference(read, decodePicture(file.bytes)->image), 0) << file.name;
    }
}

}  // namespace
}  // namespace zelto
