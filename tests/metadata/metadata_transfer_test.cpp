// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_transfer.h"

#include "pictures/picture_writer.h"
#include "platform/kept_file.h"
#include "platform/whole_file.h"
#include "records/output_options.h"
#include "support/test_pictures.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class MetadataTransfer : public ::testing::Test {
  protected:
    QString write(const QString& name, const QByteArray& content) {
        const QString path = folder_.filePath(name);
        EXPECT_TRUE(writeWholeFile(path, content));
        return path;
    }
    static QByteArray content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QString tag(const QString& path, const QStringList& arguments) {
        const Result<QString> answer =
            pool_.run(QStringList{u"-overwrite_original"_s} + arguments + QStringList{path}, 30s);
        EXPECT_TRUE(answer && answer->contains(u"1 image files updated"_s));
        return path;
    }
    // A camera's photo: turned, with a position in Exif and XMP, an owner and a lens.
    QString cameraPhoto(const QString& name, int exifDpi = 72, int jfifDensity = 0, int jfifUnit = 1) {
        TestJpeg options;
        options.exifDpi = exifDpi;
        options.jfifDensity = jfifDensity;
        options.jfifUnit = jfifUnit;
        return tag(write(name, jpegBytes(drawnScene({40, 30}), options)),
                   {u"-Orientation#=6"_s, u"-GPSLatitude=12.5"_s, u"-GPSLatitudeRef=N"_s,
                    u"-XMP-exif:GPSLongitude=33"_s, u"-XMP-iptcExt:LocationCreatedGPSLatitude=12.5"_s,
                    u"-Artist=Ann"_s, u"-LensModel=50mm"_s, u"-XMP-plus:CopyrightStatus=Unknown"_s});
    }
    QByteArray picture(PictureFormat format, double dpi) {
        EncodeOptions options;
        options.dpiX = options.dpiY = dpi;
        return encodePicture(drawnScene({32, 24}), format, options).value_or(QByteArray());
    }
    // The tags of a file by "group:name", numbers as they are stored; only those of `names`.
    QJsonObject tags(const QString& path, const QStringList& names) {
        QStringList arguments = {u"-j"_s, u"-G1"_s, u"-n"_s, u"-a"_s};
        for (const QString& name : names) arguments += u'-' + name;
        QJsonObject found = QJsonDocument::fromJson(
                                pool_.run(arguments + QStringList{path}, 30s).value_or(QString()).toUtf8())
                                .array()
                                .at(0)
                                .toObject();
        found.remove(u"SourceFile"_s);
        return found;
    }
    // Every resolution of a file's tags, in dots per inch; 0 for one without a unit.
    static QMap<QString, double> resolutions(const QJsonObject& found) {
        QMap<QString, double> result;
        for (const auto& [group, inch, centimetre] : {std::tuple{u"JFIF"_s, 1, 2}, {u"IFD0"_s, 2, 3}}) {
            if (!found.contains(group + u":XResolution"_s)) continue;
            const int unit = found[group + u":ResolutionUnit"_s].toInt();
            const double perInch = unit == inch ? 1.0 : unit == centimetre ? 2.54 : 0.0;
            result[group] = found[group + u":XResolution"_s].toDouble() * perInch;
        }
        return result;
    }

    QTemporaryDir folder_;
    ExiftoolPool pool_{1};
};

TEST_F(MetadataTransfer, EachChoiceCarriesWhatItSaysFromAnyResolutionBlockIntoJpegAndTiff) {
    const struct {
        int exifDpi;
        int jfifDensity;
        int jfifUnit;
        double dpi;
    } sources[] = {
        {300, 0, 1, 300.0}, {0, 150, 1, 150.0}, {0, 60, 2, 152.4}, {200, 200, 1, 200.0}, {0, 0, 1, 72.0}};
    for (const auto& row : sources) {
        const QString source = cameraPhoto(u"s.jpg"_s, row.exifDpi, row.jfifDensity, row.jfifUnit);
        for (const PictureFormat format : {PictureFormat::Jpeg, PictureFormat::Tiff}) {
            for (const std::int64_t choice : {0, 1, 2, 3}) {
                SCOPED_TRACE(::testing::Message()
                             << row.dpi << " dpi, choice " << choice << " format " << int(format));
                const QString output = write(u"out"_s, picture(format, row.dpi));
                const Result<void> done = CopyExifDataTo({output, source, choice, row.dpi, {}}, pool_);
                ASSERT_TRUE(done) << done.error().message.toStdString();
                const QJsonObject found =
                    tags(output, {u"Orientation"_s, u"Artist"_s, u"LensModel"_s, u"XResolution"_s,
                                  u"ResolutionUnit"_s, u"XMP:all"_s, u"GPS:all"_s});
                EXPECT_EQ(found.contains(u"IFD0:Artist"_s), choice != 3);
                EXPECT_EQ(found.contains(u"ExifIFD:LensModel"_s), choice == 0 || choice == 2);
                const QStringList positions = QStringList(found.keys()).filter(u"GPS"_s);
                EXPECT_EQ(positions.size() >= 3, choice == 0);
                EXPECT_TRUE(choice == 0 || positions.isEmpty()) << positions.join(u' ').toStdString();
                EXPECT_EQ(found.contains(u"XMP-plus:CopyrightStatus"_s), choice != 3);
                EXPECT_EQ(found[u"IFD0:Orientation"_s].toInt(1), 1);
                const QMap<QString, double> stated = resolutions(found);
                EXPECT_FALSE(stated.isEmpty());
                for (const double dpi : stated) EXPECT_NEAR(dpi, row.dpi, 1.3);
                EXPECT_FALSE(QFile::exists(output + u"_exiftool_tmp"_s));
            }
        }
    }
}

TEST_F(MetadataTransfer, CopyrightRecordIsWrittenOverTheSourcesOwn) {
    const QString source = cameraPhoto(u"s.jpg"_s);
    CopyRightMetaData c;
    c.Enabled = true;
    c.Creator = u"Zoë & \"Sons\""_s;
    c.CopyrightText = u"-all=\n© 2024 $me@home"_s;
    c.CopyrightTextStatus = u"Copyrighted"_s;
    c.CreatorMail = u"z@example.org"_s;
    c.RightsUsageTerms = u"#none"_s;
    for (const std::int64_t choice : {0, 1, 2}) {
        const QString output = write(u"out.jpg"_s, picture(PictureFormat::Jpeg, 72.0));
        ASSERT_TRUE(CopyExifDataTo({output, source, choice, 72.0, c}, pool_));
        const QJsonObject found = tags(output, {u"all:all"_s});
        EXPECT_EQ(found[u"IFD0:Artist"_s].toString(), c.Creator);
        EXPECT_EQ(found[u"XMP-dc:Rights"_s].toString(), c.Creator);
        EXPECT_EQ(found[u"IFD0:Copyright"_s].toString(), c.CopyrightText);
        EXPECT_EQ(found[u"XMP-plus:CopyrightStatus"_s].toString(), u"CS-PRO"_s);
        EXPECT_EQ(found[u"XMP-xmpRights:UsageTerms"_s].toString(), c.RightsUsageTerms);
        EXPECT_EQ(found[u"XMP-iptcCore:CreatorWorkEmail"_s].toString(), c.CreatorMail);
    }
}

TEST_F(MetadataTransfer, AnyNameOfSourceAndOutputWillDo) {
    const QByteArray tagged = content(cameraPhoto(u"s.jpg"_s));
    const QStringList names = {u"-all=.jpg"_s,
                               u"100%d %f.jpg"_s,
                               u"ä 写真 📷.jpg"_s,
                               u"two\nlines\r.jpg"_s,
                               u"#$@ [x]*?.jpg"_s,
                               u" blank .jpg"_s,
                               QString(251, u'n') + u".jpg"_s};
    for (const QString& name : names) {
        for (const QString& folder : {u"plain"_s, u"%d\n-x"_s}) {
            ASSERT_TRUE(QDir(folder_.path()).mkpath(folder + u"/out"_s));
            const QString source = write(folder + u'/' + name, tagged);
            const QString output = write(folder + u"/out/"_s + name, picture(PictureFormat::Jpeg, 72.0));
            const Result<void> done = CopyExifDataTo({output, source, 0, 72.0, {}}, pool_);
            ASSERT_TRUE(done) << done.error().message.toStdString();
            const QString readable = write(u"readable.jpg"_s, content(output));
            EXPECT_EQ(tags(readable, {u"LensModel"_s})[u"ExifIFD:LensModel"_s].toString(), u"50mm"_s)
                << name.toStdString();
            EXPECT_EQ(QDir(folder_.filePath(folder + u"/out"_s)).entryList(QDir::Files | QDir::Hidden),
                      QStringList{name});
            QFile::remove(output);
        }
    }
}

TEST_F(MetadataTransfer, OutputInThePlaceOfItsSourceKeepsTheMetadata) {
    const QString path = cameraPhoto(u"s.jpg"_s);
    ASSERT_TRUE(QFile::link(path, folder_.filePath(u"link.jpg"_s)));
    const QString link = folder_.filePath(u"link.jpg"_s);
    const Result<KeptFile> source = KeptFile::keep(path);
    ASSERT_TRUE(source);
    write(u"s.jpg"_s, picture(PictureFormat::Jpeg, 72.0));
    ASSERT_TRUE(CopyExifDataTo({link, source->path(), 0, 72.0, {}}, pool_));
    EXPECT_EQ(tags(path, {u"LensModel"_s})[u"ExifIFD:LensModel"_s].toString(), u"50mm"_s);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(KeptFile::keep(folder_.path()).error().code, ErrorCode::NotFound);
}

TEST_F(MetadataTransfer, FailureLeavesTheFileAsItWasWritten) {
    const QString source = cameraPhoto(u"s.jpg"_s);
    const QByteArray jpeg = picture(PictureFormat::Jpeg, 72.0);
    const auto program = [&](const QString& name, const QByteArray& lines) {
        const QString path = write(name, "#!/bin/sh\n" + lines + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    };
    ExiftoolPool stopsBeforeTheSecondCommand(
        1, program(u"stops"_s,
                   "sed -u '/^-jfif:ResolutionUnit=/q' | '" + exiftoolProgram().toUtf8() + "' \"$@\""));
    ExiftoolPool raves(1, program(u"raves"_s, "printf '\\033[2J%05000d\\n{ready1}\\n' 1; cat >/dev/null"));
    ExiftoolPool missing(1, folder_.filePath(u"missing"_s));
    const struct {
        ExiftoolPool& pool;
        QByteArray written;
        QString source;
    } rows[] = {{stopsBeforeTheSecondCommand, jpeg, source},
                {missing, jpeg, source},
                {raves, jpeg, source},
                {pool_, jpeg, folder_.filePath(u"no such.jpg"_s)},
                {pool_, "no picture", source}};
    // A resolution that the file has not takes a second command.
    constexpr double Unrecorded = 150.0;
    for (const auto& row : rows) {
        for (const std::int64_t choice : {exif_data::IncludeAll, exif_data::ExcludeGeolocation}) {
            const QString output = write(u"out.jpg"_s, row.written);
            const Result<void> done =
                CopyExifDataTo({output, row.source, choice, Unrecorded, {}}, row.pool, 2s);
            ASSERT_FALSE(done);
            EXPECT_LT(done.error().message.size(), 600);
            EXPECT_FALSE(done.error().message.contains(u'\x1b'));
            EXPECT_EQ(content(output), row.written);
            EXPECT_FALSE(QFile::exists(output + u"_exiftool_tmp"_s));
        }
    }
    const QString output = write(u"out.jpg"_s, jpeg);
    write(u"out.jpg_exiftool_tmp"_s, "left behind");
    EXPECT_TRUE(CopyExifDataTo({output, source, 0, 72.0, {}}, pool_));
    EXPECT_FALSE(QFile::exists(output + u"_exiftool_tmp"_s));
}

}  // namespace
}  // namespace zelto
