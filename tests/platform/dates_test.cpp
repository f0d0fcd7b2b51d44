// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dates.h"

#include "support/testing.h"

#include <QTimeZone>

namespace zelto {
namespace {

const QDateTime Moment({2024, 12, 30}, {15, 4, 5}, Qt::UTC);
const QLocale American(QLocale::English, QLocale::UnitedStates);

TEST(FormatDate, PrintsEveryPatternAndLosesNothing) {
    const std::pair<QString, QString> rows[] = {
        {u"yyyy-MM-dd HH:mm:ss"_s, u"2024-12-30 15:04:05"_s},
        {u"EEEE, dd MMMM yyyy"_s, u"Monday, 30 December 2024"_s},
        {u"yyyyyyyy MMMMMM"_s, u"00002024 000012"_s},
        // Letters that are no field, and fields that print nothing at such a length.
        {u"dd T RRR"_s, u"30 T RRR"_s},
        {u"OO VVVVV dd"_s, u"OO VVVVV 30"_s},
        {u"T'x'T"_s, u"TxT"_s},
        {u"'it''s' '' yyyy 'open yyyy"_s, u"it's ' 2024 open yyyy"_s},
        {u"ж Ж 日 🌄 [dd]%"_s, u"ж Ж 日 🌄 [30]%"_s},
        {QString(QChar(0xDC00)) + u"dd"_s, QString(QChar(0xDC00)) + u"30"_s},
        {QString(100'000, u'y'), u"0000002024"_s},
    };
    for (const auto& [pattern, expected] : rows)
        EXPECT_EQ(formatDate(Moment, pattern, American), expected) << pattern.left(40).toStdString();
    EXPECT_EQ(formatDate({}, u"yyyy", American), QString());
    // On the moment's own clock.
    EXPECT_EQ(formatDate(Moment.toOffsetFromUtc(-9 * 3600 - 1800), u"dd HH:mm Z"_s, American),
              u"30 05:34 -0930"_s);
    EXPECT_EQ(formatDate(Moment.toTimeZone(QTimeZone("Pacific/Auckland")), u"dd HH:mm Z"_s, American),
              u"31 04:04 +1300"_s);
}

TEST(FormatDate, WritesAsTheLocaleDoesInTheGregorianCalendar) {
    struct Row {
        QString locale, shortDate, words;
    };
    const Row rows[] = {
        {u"en_US"_s, u"12/30/24"_s, u"Monday December 2024"_s},
        {u"de_DE"_s, u"30.12.24"_s, u"Montag Dezember 2024"_s},
        {u"ja_JP"_s, u"2024/12/30"_s, u"月曜日 12月 2024"_s},
        {u"th_TH"_s, u"30/12/24"_s, u"วันจันทร์ ธันวาคม 2024"_s},
        {u"fa_IR"_s, u"۲۰۲۴/۱۲/۳۰"_s, u"دوشنبه دسامبر ۲۰۲۴"_s},
    };
    for (const Row& row : rows) {
        const QLocale locale(row.locale);
        EXPECT_EQ(formatDate(Moment, u"EEEE MMMM yyyy", locale), row.words) << row.locale.toStdString();
        EXPECT_EQ(formatShortDate(Moment, locale), row.shortDate);
    }
}

TEST(ParsePhotoDateTime, ReadsWhatCamerasWrite) {
    const std::pair<QString, QString> rows[] = {
        {u"2014:05:03 09:41:07"_s, u"2014-05-03 09:41:07"_s},
        {u"2014:05:03 23:59:59"_s, u"2014-05-03 23:59:59"_s},
        // The twelve-hour field reads noon as hour 0.
        {u"2014:05:03 12:30:00"_s, u"2014-05-03 00:30:00"_s},
        {u"2015:02:29 18:00:00"_s, {}},
        {u"2014:05:03 24:00:00"_s, {}},
        {u"2014:05:03 10:00:00+02:00"_s, {}},
        {u"2014:05:03"_s, {}},
        {u"٢٠١٤:٠٥:٠٣ ١٣:٤١:٠٧"_s, {}},
        {QString(100'000, u'1'), {}},
        {{}, {}},
    };
    for (const auto& [text, expected] : rows) {
        const QDateTime date = parsePhotoDateTime(text).value_or(QDateTime());
        EXPECT_EQ(date.toString(u"yyyy-MM-dd HH:mm:ss"_s), expected) << text.left(40).toStdString();
    }
    EXPECT_EQ(parsePhotoDate(u"20140503"_s), QDateTime({2014, 5, 3}, {0, 0}, Qt::UTC));
    for (const QString& text : {u"20140532"_s, u"2014-05-03"_s, u"00000000"_s, u"20140503 "_s, u""_s})
        EXPECT_FALSE(parsePhotoDate(text)) << text.toStdString();
}

TEST(UserDateLocale, IsTheOneDatesAreAskedFor) {
    qunsetenv("LC_ALL");
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LC_TIME", "de_DE.UTF-8");
    EXPECT_EQ(userDateLocale(), QLocale(QLocale::German, QLocale::Germany));
}

}  // namespace
}  // namespace zelto
