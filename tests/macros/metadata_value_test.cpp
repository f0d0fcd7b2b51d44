// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/metadata_value.h"

#include "support/testing.h"

#include <limits>

namespace zelto {
namespace {

TEST(GetStringValue, PrintsNumbersTextsAndLists) {
    struct Row {
        QVariant value;
        QString key;
        std::optional<QString> expected;
    };
    const Row rows[] = {
        {u" a "_s, u"k"_s, u" a "_s},
        {2.8, u"k"_s, u"2.8"_s},
        {4.0, u"k"_s, u"4"_s},
        {1.0 / 60, u"k"_s, u"0.01666666666666667"_s},
        {1e-7, u"k"_s, u"1e-07"_s},
        {std::numeric_limits<qlonglong>::min(), u"k"_s, u"-9223372036854775808"_s},
        {QVariantList{100LL, 200LL}, u"ISOSpeedRatings"_s, u"100, 200"_s},
        {QVariantList{2LL, 2LL, 1LL}, u"ExifVersion"_s, u"2.2.1"_s},
        {QVariantList{2LL, 1LL}, u"version"_s, u"2, 1"_s},
        {QVariantList{QVariantList{1LL, 2.5}, u"x"_s}, u"k"_s, u"1, 2.5, x"_s},
        {QVariantList{}, u"k"_s, std::nullopt},
        {QVariantList{1LL, QVariantList{}}, u"k"_s, std::nullopt},
        {QVariantMap{{u"a"_s, 1LL}}, u"k"_s, std::nullopt},
        {QVariant(), u"k"_s, std::nullopt},
    };
    for (const Row& row : rows)
        EXPECT_EQ(GetStringValue(row.value, row.key), row.expected)
            << qPrintable(QDebug::toString(row.value));
}

}  // namespace
}  // namespace zelto
