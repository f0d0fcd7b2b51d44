// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/image_properties.h"

#include "metadata/exif_dictionary.h"
#include "metadata/iptc_dictionary.h"
#include "platform/whole_file.h"
#include "support/exiftool.h"
#include "support/testing.h"

#include <QDataStream>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include <exiv2/exiv2.hpp>
#include <sys/stat.h>

#include <thread>
#include <vector>

namespace zelto {
namespace {

// `expected` is JSON; null stands for a key that must be missing.
void expectProperties(const QVariantMap& dictionary, const char* expected, const QString& file) {
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(dictionary)).toJson();
    const QJsonObject found = QJsonDocument::fromJson(json).object();
    const QJsonObject wanted = QJsonDocument::fromJson(expected).object();
    EXPECT_FALSE(wanted.isEmpty());
    for (const QString& key : wanted.keys()) {
        EXPECT_TRUE(wanted[key].isNull() ? !found.contains(key) : found[key] == wanted[key])
            << qPrintable(file) << " " << qPrintable(key) << " "
            << qPrintable(QDebug::toString(dictionary.value(key)));
    }
}

// The names come from exiv2, but for those the dictionaries name otherwise: a version of exiv2 that changes one changes
// the macros of users.
TEST(ImageProperties, HaveTheNamesThatMacrosKnow) {
    Exiv2::ExifData exif;
    for (const Exiv2::TagInfo* tag = Exiv2::ExifTags::tagList("Photo"); tag->tag_ != 0xFFFF; ++tag)
        exif[Exiv2::ExifKey(tag->tag_, "Photo").key()] = std::uint16_t{1};
    EXPECT_EQ(QStringList(exifDictionary(exif).keys()).join(u' ').toStdString(),
              "ApertureValue BodySerialNumber BrightnessValue CFAPattern CameraOwnerName ColorSpace "
              "ComponentsConfiguration CompressedBitsPerPixel Contrast CustomRendered DateTimeDigitized "
              "DateTimeOriginal DeviceSettingDescription DigitalZoomRatio ExifVersion ExposureBiasValue "
              "ExposureIndex ExposureMode ExposureProgram ExposureTime FNumber FileSource Flash "
              "FlashEnergy FlashPixVersion FocalLenIn35mmFilm FocalLength FocalPlaneResolutionUnit "
              "FocalPlaneXResolution FocalPlaneYResolution GainControl Gamma ISOSpeed ISOSpeedLatitudeyyy "
              "ISOSpeedLatitudezzz ISOSpeedRatings ImageUniqueID LensMake LensModel LensSerialNumber "
              "LensSpecification LightSource MaxApertureValue MeteringMode OECF OffsetTime "
              "OffsetTimeDigitized OffsetTimeOriginal PixelXDimension PixelYDimension "
              "RecommendedExposureIndex RelatedSoundFile Saturation SceneCaptureType SceneType "
              "SensingMethod SensitivityType Sharpness ShutterSpeedValue SpatialFrequencyResponse "
              "SpectralSensitivity StandardOutputSensitivity SubjectArea SubjectDistRange SubjectDistance "
              "SubjectLocation SubsecTime SubsecTimeDigitized SubsecTimeOriginal UserComment WhiteBalance");
    Exiv2::IptcData iptc;
    Exiv2::StringValue text("x");
    for (const Exiv2::DataSet* set = Exiv2::IptcDataSets::application2RecordList(); set->number_ != 0xFFFF;
         ++set)
        iptc.add(Exiv2::IptcKey(set->number_, Exiv2::IptcDataSets::application2), &text);
    const QVariantMap found = iptcDictionary(iptc, {});
    QStringList names;  // with a star where there may be several
    for (auto entry = found.cbegin(); entry != found.cend(); ++entry)
        names.append(entry->typeId() == QMetaType::QVariantList ? entry.key() + u'*' : entry.key());
    EXPECT_EQ(names.join(u' ').toStdString(),
              "ActionAdvised Byline* BylineTitle* Caption/Abstract Category City Contact* "
              "ContentLocationCode* ContentLocationName* CopyrightNotice Country/PrimaryLocationCode "
              "Country/PrimaryLocationName Credit DateCreated DigitalCreationDate DigitalCreationTime "
              "EditStatus EditorialUpdate ExpirationDate ExpirationTime FixtureIdentifier Headline "
              "ImageOrientation ImageType Keywords* LanguageIdentifier ObjectAttributeReference* "
              "ObjectCycle ObjectName ObjectTypeReference OriginalTransmissionReference OriginatingProgram "
              "ProgramVersion Province/State ReferenceDate* ReferenceNumber* ReferenceService* ReleaseDate "
              "ReleaseTime Source SpecialInstructions SubLocation SubjectReference* SupplementalCategory* "
              "TimeCreated Urgency Writer/Editor*");
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
                         R"({"ExposureTime": 0.004, "ExposureBiasValue": -0.3333333333333333,
                             "ISOSpeedRatings": [200], "ExposureProgram": 3, "FileSource": 3,
                             "DateTimeOriginal": "2014:05:03 09:41:07", "SubsecTimeOriginal": "12",
                             "ExifVersion": [2, 3], "FlashPixVersion": [1, 0],
                             "ComponentsConfiguration": [1, 2, 3, 0], "LensSpecification": [24, 70, 0, 0],
                             "FocalLenIn35mmFilm": 50, "SubjectDistRange": 2, "UserComment": "Grüße 日本",
                             "LensModel": "Ωmega", "Model": null, "GPSAltitude": null})",
                         path);
        expectProperties(properties.iptc,
                         R"({"City": "Zürich", "Keywords": ["one", "zwölf"], "Byline": ["Me"],
                             "DateCreated": "20140503", "TimeCreated": "101112+0100",
                             "Province/State": "Bern", "StarRating": 4, "UsageTerms": "None",
                             "Scene": ["011100"],
                             "CreatorContactInfo": {"CiAdrCity": "Bern", "CiEmailWork": "a@b.ch"}})",
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
    const QVariantMap found =
        read(tiffWithExif({{0x829A, Rational, 1, oneByZero},
                           {0x829D, Ascii, 4, "f/8"},
                           {0x8827, Ascii, 3, "50"},
                           {0x9000, Rational, 1, oneByZero},
                           {0x9003, Short, 1, QByteArray::fromHex("0700")},
                           {0x9201, Rational, 0, {}},
                           {0x9202, Rational, 1, QByteArray::fromHex("ffffffff01000000")},
                           {0x9207, Long, 2, QByteArray::fromHex("0100000002000000")},
                           {0x9286, Undefined, 3, "ABC"},
                           {0xA217, 99, 1, "x"},
                           {0xA430, Ascii, 70'000, QByteArray(70'000, 'n')},
                           {0xA431, Ascii, 8, QByteArray("\xC3\x28\0abcd", 8)},
                           {0xA432, Rational, 2, oneByZero + oneByZero},
                           {0xA433, Ascii, 12, QByteArray("Maker      \0", 12)},
                           {0xA434, Short, 0x7FFFFFFF, "ABCDEFGH"},
                           {0xA435, Undefined, 5000, QByteArray(5000, '\1')}}));
    expectProperties(found,
                     R"({"ExposureTime": null, "FNumber": "f/8", "ISOSpeedRatings": "50",
                         "DateTimeOriginal": 7, "ShutterSpeedValue": null, "ApertureValue": 4294967295,
                         "MeteringMode": [1, 2], "BodySerialNumber": "Ã(", "LensSpecification": [0, 0],
                         "LensMake": "Maker", "LensModel": null})",
                     u"hostile"_s);
    EXPECT_EQ(found.value(u"CameraOwnerName"_s), QString(65'536, u'n'));

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
            right += readImageProperties(path).iptc.value(u"StarRating"_s) == 3;  // by others meanwhile
        });
    }
    threads.clear();
    EXPECT_EQ(right, 8);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(shared.get().exif.value(u"FNumber"_s), 4.0);
}

}  // namespace
}  // namespace zelto
