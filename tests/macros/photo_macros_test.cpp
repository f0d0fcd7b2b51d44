// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/photo_macros.h"

#include "platform/whole_file.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"

#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

const QDateTime Now(QDate(2024, 5, 3), QTime(9, 41));

TEST(PhotoMacros, TellWhatEachPrintsOnThePhoto) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"shore.jpg"_s);
    ASSERT_TRUE(writeWholeFile(path, jpegBytes(drawnScene({60, 40}), {.orientation = 6, .exifDpi = 300})));
    ASSERT_TRUE(
        writeTags({u"-EXIF:FNumber=2.8"_s, u"-EXIF:ExposureTime=1/250"_s, u"-IPTC:City=Bern"_s}, {path}));

    const PhotoMacros macros = macrosOfPhoto(path, 6, Now, QLocale::c());
    ASSERT_EQ(macros.values.size(), macros.list.size());
    QMap<QString, QString> values;
    for (qsizetype i = 0; i < macros.list.size(); ++i) values[macros.list[i].MacroText] = macros.values[i];
    const QMap<QString, QString> expected = {
        {u"Auto Number"_s, u"7"_s},       {u"Image Name (Without Extension)"_s, u"shore"_s},
        {u"Photo Width"_s, u"40"_s},      {u"Photo Height"_s, u"60"_s},
        {u"Photo DPI Width"_s, u"300"_s}, {u"EXIF:FNumber"_s, u"2.8"_s},
        {u"IPTC:City"_s, u"Bern"_s},      {u"EXIF:ExposureTime"_s, u"1/250"_s}};
    for (auto row = expected.cbegin(); row != expected.cend(); ++row)
        EXPECT_EQ(values.value(row.key()), row.value()) << qPrintable(row.key());
}

TEST(PhotoMacros, WithoutAPhotoOnlyTheDateIsKnown) {
    const PhotoMacros macros = macrosOfPhoto({}, 0, Now, QLocale(u"en_GB"_s));
    ASSERT_EQ(macros.list.size(), 12);
    ASSERT_EQ(macros.values.size(), 12);
    EXPECT_EQ(macros.values.join(u""_s), u"03/05/2024"_s);
}

}  // namespace
}  // namespace zelto
