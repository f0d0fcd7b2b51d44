// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/auto_number.h"

#include "support/testing.h"

#include <limits>

namespace zelto {
namespace {

TEST(GenerateAutoMacro, FillsTheStartNumberUpToItsDigits) {
    const std::pair<AutoNumberFields, QString> rows[] = {
        {{}, u"<<AUTO:1+1>>"_s},
        {{u"4"_s, u"1"_s, u"1"_s}, u"<<AUTO:###1+1>>"_s},
        {{u"2"_s, u"123"_s, u"1"_s}, u"<<AUTO:123+1>>"_s},
        {{u"3"_s, ContinueLastNumber(true, 57), u"10"_s}, u"<<AUTO:#58+10>>"_s},
        {{u"999999999999"_s, u"1"_s, u"1"_s}, u"<<AUTO:"_s + QString(99, u'#') + u"1+1>>"_s},
    };
    for (const auto& [fields, expected] : rows) EXPECT_EQ(GenerateAutoMacro(fields), expected);
}

TEST(GenerateAutoMacro, TakesNumbersFromOneAndGoesOnAfterTheLast) {
    for (const QString& typed : {u"0"_s, u"-3"_s, u""_s, u"abc"_s})
        EXPECT_EQ(autoNumberField(typed), u"1"_s) << typed.toStdString();
    EXPECT_EQ(autoNumberField(u"007"_s), u"007"_s);
    EXPECT_EQ(ContinueLastNumber(true, 0), u"1"_s);
    EXPECT_EQ(ContinueLastNumber(false, 57), u"1"_s);
    EXPECT_EQ(ContinueLastNumber(true, std::numeric_limits<qint64>::max()), u"9223372036854775807"_s);
}

}  // namespace
}  // namespace zelto
