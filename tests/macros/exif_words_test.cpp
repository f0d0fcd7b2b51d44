// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/exif_words.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

struct Row {
    QString key, text, expected;
};

void expectWords(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(GetExifValue(row.text, row.key).toStdString(), row.expected.toStdString())
            << row.key.toStdString() << " " << row.text.toStdString();
    }
}

// Tables whose words, first code or step between codes are out of the ordinary.
TEST(GetExifValue, FindsTheWordOfACodeInItsTable) {
    expectWords({
        {u"LightSource"_s, u"255"_s, u"Other"_s},
        {u"Flash"_s, u"16"_s, u"Flash did not fire, compulsory flash mode"_s},
        {u"ApertureValue"_s, u"8"_s, u"Landscape mode (for landscape photos with the background in focus)"_s},
        {u"ExposureProgram"_s, u"9"_s, u"Bulb"_s},
        {u"SubjectDistanceRange"_s, u"3"_s, u"Distant view"_s},
        {u"Orientation"_s, u"2"_s, u"Top RIght"_s},
        {u"FaxProfile"_s, u"255"_s, u"Multi Profiles"_s},
        {u"CodingMethods"_s, u"6"_s, u"JBIG color"_s},
        {u"CFALayout"_s, u"9"_s,
         u"Even rows offset down by 1/2 row, even columns offset right by 1/2 column"_s},
        {u"ResolutionUnit"_s, u"3"_s, u"Centimeter"_s},
        {u"WhiteBalance"_s, u"1"_s, u"Manual white balance"_s},
        {u"JPEGProc"_s, u"14"_s, u"Lossless Process with Huffman coding"_s},
        {u"MDFileTag"_s, u"128"_s, u"Linear data format"_s},
    });
}

TEST(GetExifValue, TreatsUnlistedCodesAsItsTablesSay) {
    expectWords({
        {u"LightSource"_s, u"30"_s, u"Reserved"_s},
        {u"MeteringMode"_s, u"9"_s, u"reserved"_s},
        {u"Flash"_s, u"24"_s, u"reserved"_s},
        {u"SceneType"_s, u"0"_s, u"Not a directly photographed image"_s},
        {u"ExposureProgram"_s, u"12"_s, u"12"_s},
        {u"JPEGProc"_s, u"2"_s, u"2"_s},
        {u"WhiteBalance"_s, u"18446744073709551616"_s, u"18446744073709551616"_s},
        {u"Model"_s, u"1"_s, u"1"_s},
        {u"flash"_s, u"1"_s, u"1"_s},
        {u"Flash"_s, u""_s, u""_s},
    });
}

TEST(GetExifValue, TakesTheCodeFromTheStartOfTheText) {
    expectWords({
        {u"ApertureValue"_s, u"2.8"_s, u"Normal program"_s},
        {u"Contrast"_s, u" +1, 2"_s, u"Soft"_s},
        {u"Contrast"_s, u"text"_s, u"Normal"_s},
        // The sensing method is told by the value, not by the key.
        {u"SensingMethod"_s, u"2"_s, u"2"_s},
        {u"Contrast"_s, u"SensingMethod"_s, u"reserved"_s},
        {u"LightSource"_s, u"SensingMethod"_s, u"unknown"_s},
        {u"ApertureValue"_s, u"SensingMethod"_s, u"Not defined"_s},
    });
}

TEST(GetExifValue, WritesEveryExposureTimeAsAFraction) {
    expectWords({
        {u"ExposureTime"_s, u"0.0125"_s, u"1/80"_s},
        {u"ExposureTime"_s, u"0.01666666666666667"_s, u"1/60"_s},
        {u"ExposureTime"_s, u"0.3"_s, u"1/4"_s},
        {u"ExposureTime"_s, u"2"_s, u"1/1"_s},
        {u"ExposureTime"_s, u"1e-05, 2"_s, u"1/100000"_s},
        {u"ExposureTime"_s, u"0"_s, u"1/inf"_s},
        {u"ExposureTime"_s, u"nan"_s, u"1/inf"_s},
    });
}

}  // namespace
}  // namespace zelto
