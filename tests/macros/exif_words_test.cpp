// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/exif_words.h"

#include "support/testing.h"

namespace zelto {
namespace {

TEST(GetExifValue, FindsTheWordOfACodeOrKeepsTheValue) {
    const QString rows[][3] = {
        // Codes with a word, codes of tables that have one for all others, and codes without.
        {u"Flash"_s, u"24"_s, u"reserved"_s},
        {u"LightSource"_s, u"30"_s, u"Reserved"_s},
        {u"ExposureProgram"_s, u"12"_s, u"12"_s},
        {u"ExposureProgram"_s, u"-1"_s, u"-1"_s},
        {u"WhiteBalance"_s, u"18446744073709551616"_s, u"18446744073709551616"_s},
        // Names without a table, and in another letter case.
        {u"Model"_s, u"1"_s, u"1"_s},
        {u"SubjectDistRange"_s, u"1"_s, u"1"_s},
        // The code is what the text starts with; no number is 0, but nothing stays nothing.
        {u"ApertureValue"_s, u"2.8"_s, u"Normal program"_s},
        {u"Contrast"_s, u" +1, 2"_s, u"Soft"_s},
        {u"Contrast"_s, u"text"_s, u"Normal"_s},
        {u"Flash"_s, u""_s, u""_s},
        // A value that is the name of the sensing method, but for the tables that are looked at before.
        {u"SensingMethod"_s, u"2"_s, u"2"_s},
        {u"SensingMethod"_s, u"SensingMethod"_s, u"reserved"_s},
        {u"ExposureTime"_s, u"SensingMethod"_s, u"reserved"_s},
        {u"LightSource"_s, u"SensingMethod"_s, u"unknown"_s},
        // Every exposure time is a fraction of a second.
        {u"ExposureTime"_s, u"0.01666666666666667"_s, u"1/60"_s},
        {u"ExposureTime"_s, u"0.3"_s, u"1/4"_s},
        {u"ExposureTime"_s, u"2"_s, u"1/1"_s},
        {u"ExposureTime"_s, u"1e-05, 2"_s, u"1/100000"_s},
        {u"ExposureTime"_s, u"nan"_s, u"1/inf"_s},
    };
    for (const auto& [key, text, expected] : rows)
        EXPECT_EQ(GetExifValue(text, key).toStdString(), expected.toStdString())
            << key.toStdString() << " " << text.toStdString();
}

}  // namespace
}  // namespace zelto
