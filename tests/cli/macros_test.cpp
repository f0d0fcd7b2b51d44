// SPDX-License-Identifier: GPL-3.0-or-later
// What macros print on the written photos: QR codes hold them, and a reader of QR codes tells.
#include "cli/batch_program.h"
#include "support/exiftool.h"
#include "support/qr_reader.h"
#include "support/test_pictures.h"

#include <QDateTime>
#include <QFile>

#include <gmock/gmock.h>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

Watermark code(const QString& text, std::int32_t position) {
    Watermark record(watermark_type::QrCode);
    record.Text = text;
    record.Position = position;
    record.ResizeFormat = 1;
    record.ResizeWidth = 300;
    return record;
}

class Macros : public BatchProgram {
  protected:
    // One QR code a text, as many as have room: four on a photo of 660 pixels.
    void useTexts(const QStringList& texts) const {
        WatermarkStack stack;
        const std::int32_t corners[] = {1, 3, 7, 9};
        for (qsizetype i = 0; i < texts.size(); ++i) stack.Watermarks.push_back(code(texts[i], corners[i]));
        useSetting(stack);
    }
    QString writePhoto(const QString& name, QSize size, const TestJpeg& options = {}) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::lightGray);
        return makeFile(u"in/"_s + name, jpegBytes(picture, options));
    }
    static std::string listed(QStringList texts) {
        texts.sort();  // a reader finds them in any order
        return texts.join(u'\n').toStdString();
    }
    std::string codes(const QString& name) const { return listed(readQrCodes(output(name))); }
};

TEST_F(Macros, PrintWhatTheyKnowOfEachPhotoOfAList) {
    const QString first = writePhoto(u"Küste 海/one.tar.jpg"_s, {800, 660}, {.jfifDensity = 300});
    // Stands upright at 700 x 680.
    const QString second = writePhoto(u"two.JPG"_s, {680, 700}, {.orientation = 6, .exifDpi = 150});
    const QString third = makePhoto(u"three.png"_s, {720, 660});
    for (const QString& photo : {first, second, third}) {
        QFile file(photo);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(QDateTime({2001, 2, 3}, {14, 5, 6}), QFile::FileModificationTime));
    }
    useTexts({u"<<AUTO:##8+3>> <<IMGNAME>> <<IMGNAMEEXT>>"_s, u"<<FOLDER>> <<FULLPATH>>"_s,
              u"<<PHOTOWIDTH>>x<<PHOTOHEIGHT>> <<PHOTODPIX>>/<<PHOTODPIY>>"_s,
              u"<<MODDATE>> <<MODDATE[DD, D. MM Y h:n:s]>> <<CREATEDATE[Y-M-D]>> <<TODAYDATE[Y-M-D]>>"_s});
    const auto today = [] { return QDate::currentDate().toString(Qt::ISODate); };
    const QString before = today();
    ASSERT_EQ(
        run({first, second, third}, {{u"LC_ALL"_s, QString()}, {u"LC_TIME"_s, u"de_DE.UTF-8"_s}}).exitStatus,
        0);
    struct Row {
        const QString& photo;
        const char* output;
        const char* name;
        const char* size;
    };
    const Row rows[] = {{first, "one.tar.jpg", "008 one.tar one.tar.jpg", "800x660 300/300"},
                        {second, "two.jpg", "011 two two.JPG", "700x680 150/150"},
                        {third, "three.png", "014 three three.png", "720x660 96/96"}};
    for (const Row& row : rows) {
        const QFileInfo info(row.photo);
        const QDateTime created = info.birthTime().isValid() ? info.birthTime() : info.metadataChangeTime();
        const auto expected = [&](const QString& now) {
            return listed({QLatin1String(row.name), info.path() + u"/ "_s + row.photo,
                           QLatin1String(row.size),
                           u"03.02.01 Samstag, 03. Februar 2001 14:05:06 %1 %2"_s.arg(
                               created.date().toString(Qt::ISODate), now)});
        };
        EXPECT_THAT(codes(QLatin1String(row.output)), ::testing::AnyOf(expected(before), expected(today())))
            << row.name;
    }
}

TEST_F(Macros, PrintTheRealTagsOfJpegTiffAndPng) {
    const QStringList photos = {writePhoto(u"a.jpg"_s, {700, 660}), makePhoto(u"b.tif"_s, {700, 660}),
                                makePhoto(u"c.png"_s, {700, 660})};
    ASSERT_TRUE(writeTags({u"-ExposureTime=1/250"_s, u"-FNumber=2.8"_s, u"-ISO=200"_s, u"-EXIF:Flash#=16"_s,
                           u"-MeteringMode#=5"_s, u"-ExposureProgram#=3"_s, u"-ExifVersion=0231"_s,
                           u"-DateTimeOriginal=2014:05:03 15:41:07"_s, u"-Model=Camera"_s,
                           u"-LensModel=50 mm ƒ/1.8"_s, u"-CodedCharacterSet=UTF8"_s, u"-IPTC:City=Zürich"_s,
                           u"-IPTC:Keywords=sea"_s, u"-IPTC:Keywords=海"_s, u"-IPTC:DateCreated=2014:05:03"_s,
                           u"-XMP:Rating=4"_s, u"-XMP-iptcCore:CreatorWorkEmail=a@b.ch"_s},
                          photos));
    useTexts(
        {u"<<EXIF:ExposureTime>> f/<<EXIF:FNumber>> ISO <<EXIF:ISOSpeedRatings>> <<EXIF:ExifVersion>>"_s,
         u"<<EXIF:Flash>>, <<EXIF:MeteringMode>>, <<EXIF:ExposureProgram>> [<<EXIF:Model>>] <<EXIF:LensModel>>"_s,
         u"<<EXIF:DateTimeOriginal>> <<EXIF:DateTimeOriginal[D.M.Y h:n]>> <<IPTC:DateCreated[DD, D MM Y]>>"_s,
         u"<<IPTC:City>> (<<IPTC:Keywords>>) <<IPTC:StarRating>> <<IPTC:CiEmailWork>>[<<IPTC:Nothing>>]"_s});
    ASSERT_EQ(run(photos).exitStatus, 0);
    const std::string expected = listed(
        {u"1/250 f/2.8 ISO 200 2.3.1"_s, u"2014:05:03 15:41:07 03.05.2014 15:41 Saturday, 03 May 2014"_s,
         u"Flash did not fire, compulsory flash mode, Pattern, Aperture-priority AE [] 50 mm ƒ/1.8"_s,
         u"Zürich (sea, 海) 4 a@b.ch[]"_s});
    for (const char* name : {"a.jpg", "b.tif", "c.png"})
        EXPECT_EQ(codes(QLatin1String(name)), expected) << name;
}

TEST_F(Macros, BrokenOnesAndStrangeNamesComeOutAsTheyStand) {
    const QStringList names = {u"写真 📷 שלום.png"_s, u"<<IMGNAME>>[x]>>.png"_s,
                               u"a%20b&c;'$(d)`e`\"f\"\\.png"_s, QString(80, u'ж') + u".png"_s};
    QStringList photos;
    for (const QString& name : names) photos.append(makePhoto(name, {700, 660}));
    const QString broken = u"<<IMGNAME> <<imgname>> <<AUTO:x+1>> <<TODAYDATE[Y>> <<EXIF:FNumber"_s;
    useTexts({u"<<IMGNAMEEXT>>"_s, broken, QString(100'000, u'Q'),
              u"<<EXIF:>><<IPTC:[[]]>><<EXIF:FNumber[Y]>>."_s});
    ASSERT_EQ(run(photos).exitStatus, 0);
    // A text too long for a code draws none.
    for (const QString& name : names) EXPECT_EQ(codes(name), listed({name, broken, u"."_s}));
}

// Each would take hours or all memory when done naively; a run that hangs fails by the test's time limit.
TEST_F(Macros, HugeTextsOnlyCostTheirTime) {
    const QString photo = makePhoto(u"a.png"_s, {200, 100});
    for (const QString& piece :
         {u"<<IMGNAME>>"_s, u"<<EXIF:"_s, u"<<AUTO:###1+1>>\n"_s, u"<<TODAYDATE[Y]>> "_s}) {
        Watermark text(watermark_type::Text);
        text.Text = piece.repeated(100'000 / piece.size());
        text.FontSize = 20;
        text.Transparency = 1.0F;
        WatermarkStack stack;
        stack.Watermarks = {text, code(text.Text, 1)};
        useSetting(stack);
        EXPECT_EQ(run({photo}).exitStatus, 0) << piece.toStdString();
        EXPECT_EQ(output(u"a.png"_s).size(), QSize(200, 100));
    }
}

}  // namespace
}  // namespace zelto
