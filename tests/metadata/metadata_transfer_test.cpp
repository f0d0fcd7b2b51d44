// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_transfer.h"

#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "records/output_options.h"
#include "support/ink.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace zelto {
namespace {

using namespace std::chrono_literals;

class TransferTest : public ::testing::Test {
  protected:
    QString write(const QString& name, const QByteArray& content) {
        const QString path = folder_.filePath(name);
        EXPECT_TRUE(writeWholeFile(path, content));
        return path;
    }
    QString tag(const QString& path, const QStringList& arguments) {
        const Result<QString> answer =
            pool_.run(QStringList{u"-overwrite_original"_s} + arguments + QStringList{path}, 30s);
        EXPECT_TRUE(answer && answer->contains(u"1 image files updated"_s));
        return path;
    }
    // A camera's photo: turned, with a position in Exif and XMP and the name of its place, an owner and a lens.
    QString cameraPhoto(const QString& name, int exifDpi = 72, int jfifDensity = 0, int jfifUnit = 1) {
        TestJpeg options;
        options.exifDpi = exifDpi;
        options.jfifDensity = jfifDensity;
        options.jfifUnit = jfifUnit;
        return tag(write(name, jpegBytes(drawnScene({40, 30}), options)),
                   {u"-Orientation#=6"_s, u"-GPSLatitude=12.5"_s, u"-GPSLatitudeRef=N"_s,
                    u"-XMP-exif:GPSLongitude=33"_s, u"-XMP-exif:GPSDateTime=2024:05:03 09:41:07Z"_s,
                    u"-XMP:DCDecimalLatitude=12.5"_s, u"-XMP:DCVerbatimCoordinates=12.5 N"_s,
                    u"-XMP-iptcExt:LocationCreatedGPSLatitude=12.5"_s, u"-XMP-photoshop:City=Bern"_s,
                    u"-Artist=Ann"_s, u"-LensModel=50mm"_s, u"-XMP-plus:CopyrightStatus=Unknown"_s});
    }
    QByteArray picture(PictureFormat format, double dpi) {
        EncodeOptions options;
        options.dpiX = options.dpiY = dpi;
        return encodePicture(shown_, format, options).value_or(QByteArray());
    }
    // The path of an output with the metadata of `source`.
    QString output(const QString& source, std::int64_t choice, double dpi = 72.0,
                   const std::optional<CopyRightMetaData>& copyright = {},
                   PictureFormat format = PictureFormat::Jpeg) {
        const Result<QByteArray> done =
            transfer_.CopyExifDataTo(picture(format, dpi), shown_, {{}, source, choice, dpi, copyright});
        EXPECT_TRUE(done) << done.error().message.toStdString();
        return write(u"out"_s, done.value_or(QByteArray()));
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
    const QImage shown_ = drawnScene({320, 240});
    ExiftoolPool pool_{1};
    MetadataTransfer transfer_{pool_};
};

TEST_F(TransferTest, EachChoiceCarriesWhatItSaysFromAnyResolutionBlockIntoJpegAndTiff) {
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
                const QJsonObject found =
                    tags(output(source, choice, row.dpi, {}, format),
                         {u"Orientation"_s, u"Artist"_s, u"LensModel"_s, u"XResolution"_s,
                          u"ResolutionUnit"_s, u"XMP:all"_s, u"GPS:all"_s, u"City"_s});
                EXPECT_EQ(found.contains(u"IFD0:Artist"_s), choice != 3);
                EXPECT_EQ(found.contains(u"ExifIFD:LensModel"_s), choice == 0 || choice == 2);
                const QStringList positions =
                    QStringList(found.keys()).filter(QRegularExpression(u"GPS|itude|oordinates"_s));
                EXPECT_EQ(positions.size() >= 6, choice == 0);
                EXPECT_TRUE(choice == 0 || positions.isEmpty()) << positions.join(u' ').toStdString();
                EXPECT_EQ(found.contains(u"XMP-plus:CopyrightStatus"_s), choice != 3);
                EXPECT_EQ(found[u"IFD0:Orientation"_s].toInt(1), 1);
                const QMap<QString, double> stated = resolutions(found);
                EXPECT_FALSE(stated.isEmpty());
                for (const double dpi : stated) EXPECT_NEAR(dpi, row.dpi, 1.3);
                EXPECT_EQ(found.contains(u"IPTC:City"_s), choice == 0 || choice == 2);
            }
        }
    }
}

TEST_F(TransferTest, EveryFieldOfACopyrightRecordIsWrittenOverTheSourcesOwn) {
    const QString source = cameraPhoto(u"s.jpg"_s);
    using C = CopyRightMetaData;
    const std::pair<QString C::*, const char*> fields[] = {
        {&C::Creator, "IFD0:Artist IPTC:By-line XMP-dc:Creator XMP-dc:Rights"},
        {&C::CopyrightText, "IFD0:Copyright IPTC:CopyrightNotice"},
        {&C::CreatorJobTitle, "IPTC:By-lineTitle XMP-photoshop:AuthorsPosition"},
        {&C::CreatorWebsite, "XMP-iptcCore:CreatorWorkURL"},
        {&C::CopyrightURL, "XMP-xmpRights:WebStatement"},
        {&C::RightsUsageTerms, "XMP-xmpRights:UsageTerms"},
        {&C::CreatorCountry, "XMP-iptcCore:CreatorCountry"},
        {&C::CreatorCity, "XMP-iptcCore:CreatorCity"},
        {&C::CreatorMail, "XMP-iptcCore:CreatorWorkEmail"},
        {&C::CreatorPostalCode, "XMP-iptcCore:CreatorPostalCode"},
        {&C::CreatorPhone, "XMP-iptcCore:CreatorWorkTelephone"},
        {&C::CreatorState, "XMP-iptcCore:CreatorRegion"},
        {&C::CreatorAddress, "XMP-iptcCore:CreatorAddress"}};
    C c;
    for (const auto& [field, names] : fields)
        c.*field = u"-all=\n© #1 \"%1\" $me & co"_s.arg(QLatin1String(names).left(9));
    const struct {
        std::int64_t choice;
        bool enabled;
        const char *word, *status;
    } rows[] = {{0, true, "Copyrighted", "CS-PRO"},
                {1, true, "Unknown", "CS-UNK"},
                {2, true, "Public Domain", "CS-PUB"},
                {0, false, "Copyrighted", "CS-UNK"},
                {3, true, "Copyrighted", ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.word);
        c.Enabled = row.enabled;
        c.CopyrightTextStatus = QLatin1String(row.word);
        const QJsonObject found = tags(output(source, row.choice, 72.0, c), {u"all:all"_s});
        EXPECT_EQ(found[u"XMP-plus:CopyrightStatus"_s].toString(), QLatin1String(row.status));
        const bool isWritten = row.enabled && row.choice != exif_data::ExcludeAll;
        for (const auto& [field, names] : fields) {
            for (const QString& name : QString::fromLatin1(names).split(u' '))
                EXPECT_EQ(found[name].toString() == c.*field, isWritten) << qPrintable(name);
        }
    }
}

TEST_F(TransferTest, AnyNameOfASourceWillDo) {
    QFile tagged(cameraPhoto(u"s.jpg"_s));
    for (const QString& name : {u"-all=.jpg"_s, u"100%d %f.jpg"_s, u"ä 写真 📷.jpg"_s, u"two\nlines\r.jpg"_s,
                                u"#$@ [x]*?.jpg"_s, u" blank .jpg"_s, QString(251, u'n') + u".jpg"_s}) {
        ASSERT_TRUE(tagged.copy(folder_.filePath(name)));
        const QJsonObject found = tags(output(folder_.filePath(name), 0), {u"LensModel"_s});
        EXPECT_EQ(found[u"ExifIFD:LensModel"_s].toString(), u"50mm"_s) << name.toStdString();
    }
}

TEST_F(TransferTest, NoSmallPictureShowsThePhotoWithoutItsWatermarks) {
    // Each holds a position of its own as well. The thumbnail is larger than one segment of a file.
    const QString small = cameraPhoto(u"small.jpg"_s);
    const QString large = write(
        u"large.jpg"_s,
        encodePicture(drawnScene({900, 600}), PictureFormat::Jpeg, {.quality = 100}).value_or(QByteArray()));
    EXPECT_GT(QFileInfo(large).size(), 70'000);
    const QString source =
        tag(cameraPhoto(u"s.jpg"_s), {u"-ThumbnailImage<="_s + large, u"-ObjectPreviewData<="_s + small,
                                      u"-XMP-xmp:ThumbnailsImage<="_s + small});
    const auto isShown = [&](const QByteArray& base64) {
        const QImage thumbnail = QImage::fromData(QByteArray::fromBase64(base64.mid(qstrlen("base64:"))));
        const QImage wanted =
            shown_.scaled(thumbnail.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return !thumbnail.isNull() && largestDifference(thumbnail.pixel(20, 15), wanted.pixel(20, 15)) < 40;
    };
    for (const PictureFormat format : {PictureFormat::Jpeg, PictureFormat::Tiff}) {
        for (const std::int64_t choice : {exif_data::IncludeAll, exif_data::ExcludeGeolocation}) {
            const QString path = output(source, choice, 72.0, {}, format);
            const QJsonObject found =
                tags(path, {u"b"_s, u"ThumbnailImage"_s, u"ObjectPreviewData"_s, u"XMP:ThumbnailsImage"_s});
            EXPECT_EQ(found.size(), format == PictureFormat::Jpeg ? 2 : 1)
                << found.keys().join(u' ').toStdString();
            for (const QJsonValue& picture : found) EXPECT_TRUE(isShown(picture.toString().toLatin1()));
        }
    }
}

TEST_F(TransferTest, FailureIsToldAndLeavesNothingBehind) {
    const QString source = cameraPhoto(u"s.jpg"_s);
    const QByteArray jpeg = picture(PictureFormat::Jpeg, 72.0);
    const auto program = [&](const QString& name, const QByteArray& lines) {
        const QString path = write(name, "#!/bin/sh\n" + lines + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    };
    // Says it has done its work, and has done this to the file.
    const auto liar = [&](const QString& name, const QByteArray& deed) {
        return program(name, "while read -r line; do case $line in /*) last=$line;; -execute*) " + deed +
                                 "; echo '1 image files updated'; echo \"{ready${line#-execute}}\";; "
                                 "False) exit;; esac; done");
    };
    const struct {
        QString program;
        QByteArray written;
        QString source;
    } rows[] = {
        {program(u"stops"_s,
                 "sed -u '/^-jfif:ResolutionUnit=/q' | '" + exiftoolProgram().toUtf8() + "' \"$@\""),
         jpeg, source},
        {program(u"hangs"_s, "trap '' TERM HUP; sleep 1000"), jpeg, source},
        {program(u"raves"_s, "printf '\\033[2J%05000d\\n{ready1}\\n' 1; cat >/dev/null"), jpeg, source},
        {folder_.filePath(u"missing"_s), jpeg, source},
        {liar(u"empties"_s, "echo >\"$last\""), jpeg, source},
        {liar(u"cuts"_s, "truncate -s -1 \"$last\""), jpeg, source},
        {liar(u"swaps"_s, "cp '" + source.toUtf8() + "' \"$last\""), jpeg, source},
        {liar(u"swapsTiff"_s, "tr x y <\"$last\" >\"$last\"2; mv \"$last\"2 \"$last\""),
         picture(PictureFormat::Tiff, 72.0), source},
        {exiftoolProgram(), jpeg, folder_.filePath(u"no such.jpg"_s)},
        {exiftoolProgram(), "no picture", source}};
    const QTemporaryDir temporary;
    const QByteArray temporaryBefore = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.program.toStdString());
        ExiftoolPool pool(1, row.program);
        MetadataTransfer transfer(pool, 2s);
        // A resolution that the file has not takes a second command.
        const Result<QByteArray> done = transfer.CopyExifDataTo(
            row.written, shown_, {{}, row.source, exif_data::ExcludeGeolocation, 150.0, {}});
        ASSERT_FALSE(done);
        EXPECT_LT(done.error().message.size(), 600);
        EXPECT_FALSE(done.error().message.contains(u'\x1b'));
    }
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
    temporaryBefore.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporaryBefore);
}

}  // namespace
}  // namespace zelto
