// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/image_properties.h"

#include "platform/whole_file.h"
#include "support/exiftool.h"

#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <thread>
#include <vector>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

// An invalid value stands for a key that must be missing.
void expectProperties(const QVariantMap& dictionary, const QVariantMap& expected, const QString& file) {
    for (auto property = expected.begin(); property != expected.end(); ++property) {
        const QVariant value = dictionary.value(property.key());
        EXPECT_TRUE(value == *property && value.typeId() == property->typeId())
            << qPrintable(file) << " " << qPrintable(property.key()) << " "
            << qPrintable(QDebug::toString(value));
    }
}

TEST(ImageProperties, ReadsRealTagsOfJpegTiffAndPng) {
    const QTemporaryDir folder;
    QStringList paths;
    for (const QString& name : {u"ä.jpg"_s, u"写真.tif"_s, u"c d.png"_s}) {
        paths += folder.filePath(name);
        ASSERT_TRUE(QImage(16, 12, QImage::Format_RGB32).save(paths.back()));
    }
    const QString tags =
        u"-ExposureTime=1/250|-ISO=200|-ExposureProgram#=3|-DateTimeOriginal=2014:05:03 09:41:07|"
        u"-ExifVersion=0230|-FlashpixVersion=0100|-ComponentsConfiguration#=1 2 3 0|-LensInfo=24 70 0 0|"
        u"-FileSource#=3|-SubSecTimeOriginal=12|-FocalLengthIn35mmFormat=50|-SubjectDistanceRange#=2|"
        u"-ExposureCompensation=-1/3|-UserComment=Grüße 日本|-LensModel=Ωmega|-Model=Camera|-GPSAltitude=7|"
        u"-IPTC:City=Zürich|-IPTC:Keywords=one|-IPTC:Keywords=zwölf|-IPTC:By-line=Me|"
        u"-IPTC:DateCreated=2014:05:03|-IPTC:TimeCreated=10:11:12+01:00|-IPTC:Province-State=Bern|"
        u"-XMP:Rating=4|-XMP-xmpRights:UsageTerms=None|-XMP-iptcCore:Scene=011100|"
        u"-XMP-iptcCore:CreatorCity=Bern|-XMP-iptcCore:CreatorWorkEmail=a@b.ch"_s;
    ASSERT_TRUE(writeTags(tags.split(u'|'), paths));
    for (const QString& path : paths) {
        const ImageProperties properties = readImageProperties(path);
        expectProperties(properties.exif,
                         {{u"ExposureTime"_s, 0.004},
                          {u"ExposureBiasValue"_s, -1.0 / 3},
                          {u"ISOSpeedRatings"_s, QVariantList{200LL}},
                          {u"ExposureProgram"_s, 3LL},
                          {u"DateTimeOriginal"_s, u"2014:05:03 09:41:07"_s},
                          {u"ExifVersion"_s, QVariantList{2LL, 3LL}},
                          {u"FlashPixVersion"_s, QVariantList{1LL, 0LL}},
                          {u"ComponentsConfiguration"_s, QVariantList{1LL, 2LL, 3LL, 0LL}},
                          {u"LensSpecification"_s, QVariantList{24.0, 70.0, 0.0, 0.0}},
                          {u"FileSource"_s, 3LL},
                          {u"SubsecTimeOriginal"_s, u"12"_s},
                          {u"FocalLenIn35mmFilm"_s, 50LL},
                          {u"SubjectDistRange"_s, 2LL},
                          {u"UserComment"_s, u"Grüße 日本"_s},
                          {u"LensModel"_s, u"Ωmega"_s},
                          {u"Model"_s, {}},
                          {u"GPSAltitude"_s, {}}},
                         path);
        const QVariantMap contact{{u"CiAdrCity"_s, u"Bern"_s}, {u"CiEmailWork"_s, u"a@b.ch"_s}};
        expectProperties(properties.iptc,
                         {{u"City"_s, u"Zürich"_s},
                          {u"Keywords"_s, QVariantList{u"one"_s, u"zwölf"_s}},
                          {u"Byline"_s, QVariantList{u"Me"_s}},
                          {u"DateCreated"_s, u"20140503"_s},
                          {u"TimeCreated"_s, u"101112+0100"_s},
                          {u"Province/State"_s, u"Bern"_s},
                          {u"StarRating"_s, 4LL},
                          {u"UsageTerms"_s, u"None"_s},
                          {u"Scene"_s, QVariantList{u"011100"_s}},
                          {u"CreatorContactInfo"_s, contact}},
                         path);
    }

    // Declared as UTF-8, and characters that only Windows-1252 has.
    ASSERT_TRUE(writeTags({u"-CodedCharacterSet=UTF8"_s, u"-IPTC:City=東京"_s}, {paths[0]}));
    ASSERT_TRUE(writeTags({u"-IPTC:City=“5 €”"_s}, {paths[1]}));
    EXPECT_EQ(readImageProperties(paths[0]).iptc.value(u"City"_s), u"東京"_s);
    EXPECT_EQ(readImageProperties(paths[1]).iptc.value(u"City"_s), u"“5 €”"_s);
}

struct RawTag {
    quint16 number;
    quint16 type;
    quint32 count;
    QByteArray data;  // little-endian; up to four bytes stand in the entry itself
};

// A TIFF file without a picture: one directory that leads to the EXIF directory of `tags`.
QByteArray tiffWithExif(const QList<RawTag>& tags) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    constexpr quint32 ExifOffset = 26;
    out.writeRawData("II*\0\x08\0\0\0", 8);
    out << quint16{1} << quint16{0x8769} << quint16{4} << quint32{1} << ExifOffset << quint32{0};
    out << quint16(tags.size());
    QByteArray behind;
    for (const RawTag& tag : tags) {
        out << tag.number << tag.type << tag.count;
        if (tag.data.size() > 4) {
            out << quint32(ExifOffset + 2 + 12 * tags.size() + 4 + behind.size());
            behind += tag.data;
        } else {
            out.writeRawData(tag.data.leftJustified(4, '\0').constData(), 4);
        }
    }
    out << quint32{0};
    return bytes + behind;
}

TEST(ImageProperties, StandsWhatNoCameraWrites) {
    constexpr quint16 Ascii = 2, Short = 3, Long = 4, Rational = 5, Undefined = 7;
    const QTemporaryDir folder;
    const auto read = [path = folder.filePath(u"hostile.tif"_s)](const QByteArray& bytes) {
        EXPECT_TRUE(writeWholeFile(path, bytes));
        return readImageProperties(path).exif;
    };
    const QByteArray oneByZero = QByteArray::fromHex("0100000000000000");
    expectProperties(read(tiffWithExif({{0x829A, Rational, 1, oneByZero},
                                        {0x829D, Ascii, 4, "f/8"},
                                        {0x8827, Ascii, 3, "50"},
                                        {0x9000, Rational, 1, oneByZero},
                                        {0x9003, Short, 1, QByteArray::fromHex("0700")},
                                        {0x9201, Rational, 0, {}},
                                        {0x9202, Rational, 1, QByteArray::fromHex("ffffffff01000000")},
                                        {0x9207, Long, 3, QByteArray::fromHex("010000000200000003000000")},
                                        {0x9286, Undefined, 3, "ABC"},
                                        {0xA217, 99, 1, "x"},
                                        {0xA430, Ascii, 70'000, QByteArray(70'000, 'n')},
                                        {0xA431, Ascii, 8, QByteArray("\xC3\x28\0abcd", 8)},
                                        {0xA432, Rational, 2, oneByZero + oneByZero},
                                        {0xA433, Ascii, 12, QByteArray("Maker      \0", 12)},
                                        {0xA434, Short, 0x7FFFFFFF, "ABCDEFGH"},
                                        {0xA435, Undefined, 5000, QByteArray(5000, '\1')}})),
                     {{u"ExposureTime"_s, {}},
                      {u"FNumber"_s, u"f/8"_s},
                      {u"ISOSpeedRatings"_s, u"50"_s},
                      {u"DateTimeOriginal"_s, 7LL},
                      {u"ShutterSpeedValue"_s, {}},
                      {u"ApertureValue"_s, 4294967295.0},
                      {u"MeteringMode"_s, QVariantList{1LL, 2LL, 3LL}},
                      {u"CameraOwnerName"_s, QString(65'536, u'n')},
                      {u"BodySerialNumber"_s, u"Ã("_s},
                      {u"LensSpecification"_s, QVariantList{0.0, 0.0}},
                      {u"LensMake"_s, u"Maker"_s},
                      {u"LensModel"_s, {}}},
                     u"hostile"_s);

    QByteArray whole =
        tiffWithExif({{0x829D, Rational, 1, oneByZero}, {0x9003, Ascii, 20, QByteArray(20, '1')}});
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_LE(read(whole.first(length)).size(), 1) << length;
    }
    whole[18] = 8;  // a directory that leads to itself
    EXPECT_TRUE(read(whole).isEmpty());
}

TEST(ImageProperties, AreEmptyForWhatIsNoPhoto) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {folder.path(), pipe, folder.filePath(u"missing.jpg"_s), QString(),
                                u"http://localhost/x.jpg"_s, u"-"_s}) {
        EXPECT_TRUE(readImageProperties(path).exif.isEmpty()) << path.toStdString();
    }
}

TEST(LazyImageProperties, AreReadOnceForAllWhoAsk) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.jpg"_s);
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(path));
    ASSERT_TRUE(writeTags({u"-XMP:Rating=3"_s, u"-FNumber=4"_s}, {path}));
    const LazyImageProperties shared(path);
    std::atomic<int> right = 0;
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            right += shared.get().exif.value(u"FNumber"_s) == 4.0;
            // Others read the same file for themselves meanwhile.
            for (int i = 0; i < 20; ++i) right += readImageProperties(path).iptc.value(u"StarRating"_s) == 3;
        });
    }
    threads.clear();
    EXPECT_EQ(right, 4 + 4 * 20);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(shared.get().exif.value(u"FNumber"_s), 4.0);
}

}  // namespace
}  // namespace zelto
