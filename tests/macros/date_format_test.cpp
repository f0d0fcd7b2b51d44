// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/date_format.h"

#include "support/testing.h"

namespace zelto {
namespace {

TEST(GetDateFormatFromMacro, TranslatesTheLetters) {
    const std::pair<QString, QString> rows[] = {
        {u"Y-M-D H:N:S"_s, u"yyyy-MM-dd HH:mm:ss"_s}, {u"y-m-d h:n:s"_s, u"yyyy-MM-dd HH:mm:ss"_s},
        {u"DD, D MM Y"_s, u"EEEE, dd MMMM yyyy"_s},   {u"YY T"_s, u"yyyyyyyy T"_s},
        {u"MMMM DDD"_s, u"MMMMMMMM EEEEdd"_s},        {u"ß é 日"_s, u"ssss É 日"_s},
    };
    for (const auto& [format, pattern] : rows)
        EXPECT_EQ(GetDateFormatFromMacro(format), pattern) << format.toStdString();
}

TEST(DateFormat, ExplainsItsLetters) {
    const QStringList lines = dateFormatLegend(QDateTime({2024, 5, 3}, {9, 41, 7}), QLocale(u"en_US"_s));
    EXPECT_THAT(lines,
                testing::UnorderedElementsAre(u"Y : 2024"_s, u"M : 05"_s, u"MM : May"_s, u"D : 03"_s,
                                              u"H : 09"_s, u"N : 41"_s, u"S : 07"_s, u"DD : Friday"_s));
}

}  // namespace
}  // namespace zelto
