// SPDX-License-Identifier: GPL-3.0-or-later
// What macros print on the written photos: QR codes hold them, and a reader of QR codes tells.
#include "cli/batch_program.h"
#include "support/exiftool.h"
#include "support/qr_reader.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QDateTime>

namespace zelto {
namespace {

using Macros = BatchProgram;

Watermark code(const QString& text, std::int32_t position) {
    Watermark record(watermark_type::QrCode);
    record.Text = text;
    record.Position = position;
    record.ResizeFormat = 1;
    record.ResizeWidth = 300;
    return record;
}

TEST_F(Macros, PrintWhatTheyKnowOfEachPhotoOfAList) {
    QImage stored(680, 700, QImage::Format_RGB32);  // upright it is 700 x 680
    stored.fill(Qt::lightGray);
    const QString photo =
        makeFile(u"in/Küste 海/one.tar.JPG"_s, jpegBytes(stored, {.orientation = 6, .exifDpi = 150}));
    ASSERT_TRUE(writeTags({u"-ExposureTime=1/250"_s, u"-IPTC:City=Zürich"_s}, {photo}));
    QFile file(photo);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) &&
                file.setFileTime(QDateTime({2001, 2, 3}, {14, 5, 6}), QFile::FileModificationTime));
    WatermarkStack stack;
    stack.Watermarks = {code(u"<<AUTO:##8+3>> <<IMGNAMEEXT>> <<FOLDER>>"_s, 1),
                        code(u"<<PHOTOWIDTH>>x<<PHOTOHEIGHT>> <<PHOTODPIX>>"_s, 3),
                        code(u"<<MODDATE>> <<MODDATE[DD, D. MM Y h:n:s]>>"_s, 7),
                        code(u"<<EXIF:ExposureTime>> <<IPTC:City>> <<EXIF:FNumber]"_s, 9)};
    useSetting(stack);
    const ProgramEnvironment german = {{u"LC_ALL"_s, QString()}, {u"LC_TIME"_s, u"de_DE.UTF-8"_s}};
    ASSERT_EQ(run({makePhoto(u"first.png"_s), photo}, german).exitStatus, 0);
    QStringList found = readQrCodes(output(u"one.tar.jpg"_s));
    found.sort();  // a reader finds them in any order
    EXPECT_EQ(found, QStringList({u"011 one.tar.JPG "_s + path(u"in/Küste 海/"_s),
                                  u"03.02.01 Samstag, 03. Februar 2001 14:05:06"_s,
                                  u"1/250 Zürich <<EXIF:FNumber]"_s, u"700x680 150"_s}));
}

TEST_F(Macros, NameOutputsAndNoValueLeadsElsewhere) {
    const QStringList photos = {makePhoto(u"a.jpg"_s), makePhoto(u"b.jpg"_s), makePhoto(u"[O]c.jpg"_s)};
    ASSERT_TRUE(
        writeTags({u"-DateTimeOriginal=2014:05:03 14:41:07"_s, u"-IPTC:City=../Zü\trich:"_s}, {photos[0]}));
    ASSERT_TRUE(writeTags({u"-IPTC:City="_s + QString(400, u'x')}, {photos[1]}));
    useSetting(WatermarkStack());
    const QString pattern = u"<<EXIF:DateTimeOriginal[Y-M-D]>>_<<IPTC:City>> <<IMGNAME>>_[##]<<no [#]"_s;
    ASSERT_EQ(run(QStringList{u"--rename"_s, pattern} + photos).exitStatus, 0);
    EXPECT_EQ(outputs().join(u'|').toStdString(),
              (u"2014-05-03__._Zü rich_ a_01<<no 1.jpg|_ [O]c_03<<no 3.jpg|_"_s + QString(100, u'x') +
               u" b_02<<no 2.jpg"_s)
                  .toStdString());
}

}  // namespace
}  // namespace zelto
