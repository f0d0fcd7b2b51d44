// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/macro_expander.h"

#include "platform/file_times.h"
#include "support/exiftool.h"
#include "support/testing.h"

#include <QImage>

namespace zelto {
namespace {

MacroContext contextOf(const QString& path) {
    MacroContext context;
    context.photoPath = path;
    context.pixelSize = {3000, 2000};
    context.dpiX = context.dpiY = 300;
    context.row = 2;
    context.listSize = 5;
    context.now = QDateTime({2024, 5, 3}, {9, 41, 7}, Qt::UTC);
    context.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    return context;
}

struct Row {
    QString text, expected;
};

void expectRows(std::initializer_list<Row> rows, const MacroContext& context) {
    for (const Row& row : rows) {
        EXPECT_EQ(ParseMacros(row.text, context).text.toStdString(), row.expected.toStdString())
            << row.text.toStdString();
    }
}

TEST(ParseMacros, PrintsNamesSizesAndResolution) {
    expectRows({{u"Photo <<IMGNAME>>"_s, u"Photo c.tar"_s},
                {u"<<IMGNAMEEXT>> <<IMGNAMEEXT>>"_s, u"c.tar.jpg c.tar.jpg"_s},
                {u"<<FOLDER>>"_s, u"/a/b/"_s},
                {u"<<FULLPATH>>"_s, u"/a/b/c.tar.jpg"_s},
                {u"<<PHOTOWIDTH>>x<<PHOTOHEIGHT>>"_s, u"3000x2000"_s},
                {u"<<PHOTODPIX>>/<<PHOTODPIY>>"_s, u"300/300"_s},
                {u"no macro, < < > >"_s, u"no macro, < < > >"_s},
                {u"<<imgname>> <<IMGNAME> <<>>"_s, u"<<imgname>> <<IMGNAME> <<>>"_s}},
               contextOf(u"/a/b/c.tar.jpg"_s));
    // A folder of the file's own name goes too.
    expectRows({{u"<<FOLDER>>"_s, u"/x//"_s}}, contextOf(u"/x/c.jpg/c.jpg"_s));
    expectRows({{u"<<IMGNAME>>|<<FOLDER>>"_s, u".hidden|/x/"_s}}, contextOf(u"/x/.hidden"_s));
    expectRows({{u"<<IMGNAME>> <<FULLPATH>>"_s, u"фото 日本 🌄 /ü/фото 日本 🌄.jpg"_s}},
               contextOf(u"/ü/фото 日本 🌄.jpg"_s));
    // A name that holds a later macro has it expanded, one that holds an earlier macro has not.
    expectRows({{u"<<IMGNAME>>"_s, u"3000 <<IMGNAME>>"_s}},
               contextOf(u"/a/<<PHOTOWIDTH>> <<IMGNAME>>.jpg"_s));
    expectRows({{u"[<<IMGNAME>>|<<IMGNAMEEXT>>|<<FOLDER>>|<<CREATEDATE>>|<<MODDATE[Y]>>]"_s, u"[||||]"_s}},
               contextOf({}));
    MacroContext context = contextOf(u"/a.jpg"_s);
    context.dpiX = 299.2;
    context.dpiY = 71.99999999;
    expectRows({{u"<<PHOTODPIX>> <<PHOTODPIY>>"_s, u"300 72"_s}}, context);  // rounded up
}

TEST(ParseMacros, PrintsDates) {
    MacroContext context = contextOf(u"/a.jpg"_s);
    expectRows({{u"<<TODAYDATE>>"_s, u"5/3/24"_s},
                {u"<<TODAYDATE[]>>"_s, u"5/3/24"_s},
                {u"<<TODAYDATE[Y]>>"_s, u"2024"_s},
                {u"<<TODAYDATE[y-m-d h:n:s]>> <<TODAYDATE[DD, D MM Y]>>"_s,
                 u"2024-05-03 09:41:07 Friday, 03 May 2024"_s},
                {u"<<TODAYDATE[Y>>"_s, u"<<TODAYDATE[Y>>"_s},
                {u"<<TODAYDATE[Y\n]>>"_s, u"<<TODAYDATE[Y\n]>>"_s},
                // Found in any case, but only the upper-case prefix is taken off.
                {u"<<TodayDate[Y]>>"_s, u"<<TGMT033486700020240334867000TFri[2024"_s},
                // The first macro's text is replaced inside the second, which is then no longer found.
                {u"<<TODAYDATE[Y]>> <<TODAYDATE[D<<TODAYDATE[Y]>>"_s, u"2024 <<TODAYDATE[D2024"_s},
                {u"<<TODAYDATE[D.<<TODAYDATE[Y]>>"_s, u"03.2024"_s}},
               context);
    context.locale = QLocale(QLocale::German, QLocale::Germany);
    expectRows({{u"<<TODAYDATE>> <<TODAYDATE[DD, D. MM]>>"_s, u"03.05.24 Freitag, 03. Mai"_s}}, context);

    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.jpg"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) &&
                file.setFileTime(QDateTime({2001, 2, 3}, {14, 5, 6}), QFileDevice::FileModificationTime));
    file.close();
    expectRows({{u"<<MODDATE>> <<MODDATE[Y-M-D H:N:S]>>"_s, u"2/3/01 2001-02-03 14:05:06"_s},
                {u"<<CREATEDATE[Y]>> <<CREATEDATE>>"_s,
                 readFileTimes(file.fileName()).created.toString(u"yyyy M/d/yy"_s)}},
               contextOf(file.fileName()));
}

TEST(ParseMacros, CountsRows) {
    struct NumberRow {
        QString text, first, third;
    };
    const NumberRow rows[] = {
        {u"<<AUTO:###1+1>>"_s, u"0001"_s, u"0003"_s},
        {u"<<AUTO:5+>>"_s, u"5"_s, u"5"_s},
        {u"<<AUTO:>>"_s, u"0"_s, u"2"_s},
        {u"<<AUTO:7>>"_s, u"7"_s, u"9"_s},
        {u"<<AUTO:1++1>>"_s, u"1"_s, u"3"_s},
        // "1>>" is taken off as the tail of "+1>>".
        {u"<<AUTO:11+1>> b"_s, u"11 b"_s, u"13 b"_s},
        {u"<<AUTO:9223372036854775807+1>>"_s, u"9223372036854775807"_s, u"9223372036854775807"_s},
        {u"<<AUTO:+99999999999999999999>>"_s, u"0"_s, u"9223372036854775807"_s},
        {u"<<AUTO:1#+1>> <<AUTO:-1+1>>"_s, u"<<AUTO:1#+1>> <<AUTO:-1+1>>"_s,
         u"<<AUTO:1#+1>> <<AUTO:-1+1>>"_s},
    };
    MacroContext context = contextOf(u"/x.jpg"_s);
    for (const auto& [text, first, third] : rows) {
        context.row = 0;
        expectRows({{text, first}}, context);
        context.row = 2;
        expectRows({{text, third}}, context);
    }
}

TEST(ParseMacros, CutsRunningNumbersWhereTheyStoodInTheText) {
    const QString text = u"<<IMGNAME>> <<AUTO:1+1>>"_s;
    expectRows({{text, u"elevenchars 3"_s}}, contextOf(u"/elevenchars.jpg"_s));
    // One character further left stands another piece, read by the same rules.
    expectRows({{text, u"twelve chars02>"_s}}, contextOf(u"/twelve chars.jpg"_s));
    // Behind the end there is nothing to read: what is expanded so far stays, and nothing after it is
    // expanded.
    expectRows({{text, u"short <<AUTO:1+1>>"_s},
                {u"<<EXIF:x>> <<IMGNAME>><<AUTO:1+1>>"_s, u"<<EXIF:x>> short<<AUTO:1+1>>"_s},
                {text + u" and more"_s, u"short <<AUTO00002ore"_s}},
               contextOf(u"/short.jpg"_s));
    expectRows({{u"<<AUTO:1+1>> <<AUTO:5+1>>"_s, u"3 <<AUTO:5+1>>"_s},
                {u"<<AUTO:1+1>> <<AUTO:5+1>> and more text here"_s, u"3 <<AUTO:5+1>00002ext here"_s},
                {u"<<AUTO:1+1>> <<AUTO:1+1>>"_s, u"3 3"_s}},
               contextOf(u"/x.jpg"_s));
}

TEST(ParseMacros, HandsBackTheLastNumberOfARunningBatchOnly) {
    MacroContext context = contextOf(u"/x.jpg"_s);
    context.row = 4;
    const QString text = u"<<AUTO:10+2>>"_s;
    EXPECT_FALSE(ParseMacros(text, context).lastAutoNumber);
    context.batchRunning = true;
    EXPECT_EQ(ParseMacros(text, context).lastAutoNumber, 18);
    EXPECT_FALSE(ParseMacros(u"<<IMGNAME>>"_s, context).lastAutoNumber);
    context.row = 3;
    EXPECT_FALSE(ParseMacros(text, context).lastAutoNumber);
}

TEST(ParseMacros, PrintsTheMetadataOfAPhoto) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.jpg"_s);
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(path));
    const QString tags =
        u"-ExposureTime=1/250|-FNumber=2.8|-ISO=200|-EXIF:Flash#=24|-ApertureValue=2.8|-ExifVersion=0221|"
        u"-SensingMethod#=2|-DateTimeOriginal=2014:05:03 15:41:07|-EXIF:CreateDate#=0000:00:00 00:00:00|"
        u"-FocalLengthIn35mmFormat=50|-Model=Camera|-SubjectDistanceRange#=2|"
        u"-UserComment=<<EXIF:FNumber>> <<IPTC:City>>|-IPTC:City=Zürich|-IPTC:Keywords=one|"
        u"-IPTC:Keywords=two|-IPTC:DateCreated=2014:05:03|-XMP-iptcCore:CreatorCity=Bern"_s;
    ASSERT_TRUE(writeTags(tags.split(u'|'), {path}));
    MacroContext context = contextOf(path);
    context.properties = std::make_shared<LazyImageProperties>(path);
    const std::initializer_list<Row> rows = {
        {u"<<EXIF:ExposureTime>> s f/<<EXIF:FNumber>> ISO <<EXIF:ISOSpeedRatings>>"_s,
         u"1/250 s f/2.8 ISO 200"_s},
        {u"<<EXIF:Flash>>|<<EXIF:ApertureValue>>|<<EXIF:SensingMethod>>"_s, u"reserved|Normal program|2"_s},
        {u"<<EXIF:ExifVersion>>|<<IPTC:Keywords>>"_s, u"2.2.1|one, two"_s},
        // The standard's name reads the same value, and only it has words.
        {u"<<EXIF:FocalLengthIn35mmFilm>> <<EXIF:FocalLenIn35mmFilm>>"_s, u"50 50"_s},
        {u"<<EXIF:SubjectDistRange>> <<EXIF:SubjectDistanceRange>>"_s, u"2 Close view"_s},
        {u"[<<EXIF:Model>><<IPTC:FNumber>><<EXIF:>><<EXIF:exposuretime>>]"_s, u"[]"_s},
        {u"<<IPTC:CiAdrCity>>[<<IPTC:CreatorContactInfo>>]"_s, u"Bern[]"_s},
        {u"<<EXIF:DateTimeOriginal[D.M.Y h:n]>>"_s, u"03.05.2014 15:41"_s},
        {u"<<EXIF:DateTimeOriginal>>[<<EXIF:DateTimeOriginal[]>>]"_s, u"2014:05:03 15:41:07[]"_s},
        {u"<<EXIF:DateTimeOriginal[DD>> <<EXIF:DateTimeOriginal[Y][M]x>>"_s, u" 2014"_s},
        {u"<<EXIF:DateTimeDigitized[Y]>> <<EXIF:FNumber[Y]>>"_s, u"0000:00:00 00:00:00 2.8"_s},
        {u"<<IPTC:DateCreated>> <<IPTC:DateCreated[DD, D MM Y]>>"_s, u"20140503 Saturday, 03 May 2014"_s},
        // Found in any case; a replacement changes every macro of the same letters.
        {u"<<exif:FNumber>> <<iPTc:City>> <<exif:FNumber>>"_s, u"2.8 Zürich 2.8"_s},
        // Values are not searched again, except those of EXIF for IPTC macros.
        {u"<<EXIF:UserComment>>"_s, u"<<EXIF:FNumber>> Zürich"_s},
        {u"<<EXIF:UserComment>> <<EXIF:FNumber>>"_s, u"2.8 Zürich 2.8"_s},
    };
    expectRows(rows, context);
    context.properties = nullptr;
    expectRows(rows, context);
    expectRows({{u"[<<EXIF:FNumber>><<IPTC:City[Y]>>]"_s, u"[]"_s}}, contextOf(u"/missing.jpg"_s));
}

// Each of these takes hours or all memory when done naively; a run that hangs fails by the test's time limit.
TEST(ParseMacros, SurvivesHugeTexts) {
    constexpr qsizetype Length = 100'000;
    const MacroContext context = contextOf(u"/folder/name.jpg"_s);
    QString distinctDates;
    for (int i = 0; distinctDates.size() < Length; ++i) distinctDates += u"<<TODAYDATE[%1]>>"_s.arg(i);
    EXPECT_TRUE(ParseMacros(distinctDates, context).text.startsWith(u"0123456789101112"_s));
    for (const QString& piece :
         {u"<<TODAYDATE["_s, u"<<EXIF:"_s, u"<<AUTO:####"_s, u"<<IPTC:[[[["_s, u"<<EXIF:\n"_s, u"<"_s,
          QString(QChar(0xD800)), QString(QChar(0)) + u"<<EXIF:]"_s}) {
        const QString text = piece.repeated(Length / piece.size());
        EXPECT_EQ(ParseMacros(text, context).text, text) << piece.toStdString();
    }
    EXPECT_EQ(ParseMacros(u"<<TODAYDATE[Y]>>"_s.repeated(Length / 16), context).text,
              u"2024"_s.repeated(Length / 16));
    EXPECT_EQ(ParseMacros(u"<<AUTO:"_s + QString(Length, u'#') + u"+1>>"_s, context).text,
              QString(Length - 1, u'0') + u"2"_s);
    // Each number after the first is cut out of what the ones before have left.
    EXPECT_FALSE(ParseMacros(u"<<AUTO:#1+1>> "_s.repeated(Length / 14), context).text.contains(u"AUTO"_s));

    // A file name made of macros would multiply a text made of macros.
    const QString name = u"/<<FULLPATH>>"_s.repeated(300) + u"/"_s + u"<<IMGNAMEEXT>>"_s.repeated(17);
    EXPECT_LT(ParseMacros(u"<<IMGNAME>>"_s.repeated(Length / 11), contextOf(name)).text.size(), 1 << 21);
}

}  // namespace
}  // namespace zelto
