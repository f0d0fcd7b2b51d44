// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/exif_words.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

struct Row {
    QString key;
    QString text;
    QString expected;
};

void expectWords(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(GetExifValue(row.text, row.key).toStdString(), row.expected.toStdString())
            << row.key.toStdString() << " " << row.text.toStdString();
    }
}

TEST(GetExifValue, FindsTheWordOfACodeInEveryTable) {
    expectWords({
        {u"LightSource"_s, u"255"_s, u"Other"_s},
        {u"MeteringMode"_s, u"255"_s, u"Other"_s},
        {u"Flash"_s, u"16"_s, u"Flash did not fire, compulsory flash mode"_s},
        {u"ApertureValue"_s, u"8"_s, u"Landscape mode (for landscape photos with the background in focus)"_s},
        {u"ExposureProgram"_s, u"9"_s, u"Bulb"_s},
        {u"SceneCaptureType"_s, u"3"_s, u"Night scene"_s},
        {u"CFAPattern"_s, u"6"_s, u"White"_s},
        {u"GainControl"_s, u"4"_s, u"High gain down"_s},
        {u"SubjectDistanceRange"_s, u"3"_s, u"Distant view"_s},
        {u"Orientation"_s, u"8"_s, u"Left Bottom"_s},
        {u"SampleFormat"_s, u"6"_s, u"Complex float"_s},
        {u"FaxProfile"_s, u"255"_s, u"Multi Profiles"_s},
        {u"CodingMethods"_s, u"6"_s, u"JBIG color"_s},
        {u"RasterPadding"_s, u"10"_s, u"Long Sector"_s},
        {u"SensitivityType"_s, u"7"_s,
         u"Standard Output Sensitivity, Recommended Exposure Index and ISO Speed"_s},
        {u"FocalPlaneResolutionUnit"_s, u"5"_s, u"um"_s},
        {u"Transformation"_s, u"7"_s, u"Rotate 270 CW"_s},
        {u"ImageDataDiscard"_s, u"3"_s, u"Highpass and LowPass Frequency Data Discarded"_s},
        {u"AlphaDataDiscard"_s, u"1"_s, u"Flexbits Discarded"_s},
        {u"CFALayout"_s, u"9"_s,
         u"Even rows offset down by 1/2 row, even columns offset right by 1/2 column"_s},
        {u"ProfileEmbedPolicy"_s, u"3"_s, u"No Restrictions"_s},
        {u"PreviewColorSpace"_s, u"4"_s, u"ProPhoto RGB"_s},
        {u"ResolutionUnit"_s, u"3"_s, u"Centimeter"_s},
        {u"SceneType"_s, u"1"_s, u"A directly photographed image"_s},
        {u"CustomRendered"_s, u"1"_s, u"Custom process"_s},
        {u"ExposureMode"_s, u"2"_s, u"Auto bracket"_s},
        {u"WhiteBalance"_s, u"1"_s, u"Manual white balance"_s},
        {u"Contrast"_s, u"2"_s, u"Hard"_s},
        {u"Sharpness"_s, u"1"_s, u"Soft"_s},
        {u"Saturation"_s, u"2"_s, u"High saturation"_s},
        {u"OldSubfileType"_s, u"3"_s, u"A single page of a multi-page image"_s},
        {u"Thresholding"_s, u"3"_s,
         u"A randomized process such as error diffusion has been applied to the image data."_s},
        {u"PlanarConfiguration"_s, u"2"_s, u"Planar format"_s},
        {u"Predictor"_s, u"2"_s, u"Horizontal differencing"_s},
        {u"CleanFaxData"_s, u"2"_s, u"Unclean"_s},
        {u"InkSet"_s, u"2"_s, u"Not CMYK"_s},
        {u"ExtraSamples"_s, u"2"_s, u"Unassociated alpha data"_s},
        {u"Indexed"_s, u"1"_s, u"Indexed"_s},
        {u"OPIProxy"_s, u"1"_s, u"Higher resolution image exists"_s},
        {u"ProfileType"_s, u"1"_s, u"Group 3 fax"_s},
        {u"JPEGProc"_s, u"14"_s, u"Lossless Process with Huffman coding"_s},
        {u"YCbCrPositioning"_s, u"2"_s, u"Co-sited"_s},
        {u"MDFileTag"_s, u"128"_s, u"Linear data format"_s},
        {u"ImageColorIndicator"_s, u"1"_s, u"Specified Image Color"_s},
        {u"BackgroundColorIndicator"_s, u"1"_s, u"Specified Background Color"_s},
        {u"HCUsage"_s, u"2"_s, u"Trap"_s},
        {u"Uncompressed"_s, u"1"_s, u"Yes"_s},
        {u"MakerNoteSafety"_s, u"1"_s, u"Safe"_s},
    });
}

TEST(GetExifValue, TreatsUnlistedCodesAsItsTablesSay) {
    expectWords({
        {u"LightSource"_s, u"4"_s, u"Reserved"_s},
        {u"LightSource"_s, u"30"_s, u"Reserved"_s},
        {u"MeteringMode"_s, u"9"_s, u"reserved"_s},
        {u"Flash"_s, u"24"_s, u"reserved"_s},
        {u"Flash"_s, u"2"_s, u"reserved"_s},
        {u"SceneType"_s, u"0"_s, u"Not a directly photographed image"_s},
        {u"ExposureProgram"_s, u"12"_s, u"12"_s},
        {u"ExposureProgram"_s, u"-1"_s, u"-1"_s},
        {u"ApertureValue"_s, u"11"_s, u"11"_s},
        {u"JPEGProc"_s, u"2"_s, u"2"_s},
        {u"WhiteBalance"_s, u"18446744073709551616"_s, u"18446744073709551616"_s},
        {u"Orientation"_s, u"2"_s, u"Top RIght"_s},
        {u"Model"_s, u"1"_s, u"1"_s},
        {u"flash"_s, u"1"_s, u"1"_s},
        {u"SubjectDistRange"_s, u"1"_s, u"1"_s},
        {u"Flash"_s, u""_s, u""_s},
    });
}

TEST(GetExifValue, TakesTheCodeFromTheStartOfTheText) {
    expectWords({
        {u"ApertureValue"_s, u"2.8"_s, u"Normal program"_s},
        {u"Contrast"_s, u" +1, 2"_s, u"Soft"_s},
        {u"Contrast"_s, u"text"_s, u"Normal"_s},
    });
}

TEST(GetExifValue, ComparesTheSensingMethodWithTheValue) {
    expectWords({
        {u"SensingMethod"_s, u"2"_s, u"2"_s},
        {u"SensingMethod"_s, u"SensingMethod"_s, u"reserved"_s},
        {u"Contrast"_s, u"SensingMethod"_s, u"reserved"_s},
        {u"ExposureTime"_s, u"SensingMethod"_s, u"reserved"_s},
        {u"LightSource"_s, u"SensingMethod"_s, u"unknown"_s},
        {u"ApertureValue"_s, u"SensingMethod"_s, u"Not defined"_s},
    });
}

TEST(GetExifValue, WritesEveryExposureTimeAsAFraction) {
    expectWords({
        {u"ExposureTime"_s, u"0.004"_s, u"1/250"_s},
        {u"ExposureTime"_s, u"0.0125"_s, u"1/80"_s},
        {u"ExposureTime"_s, u"0.01666666666666667"_s, u"1/60"_s},
        {u"ExposureTime"_s, u"0.000125"_s, u"1/8000"_s},
        {u"ExposureTime"_s, u"0.3"_s, u"1/4"_s},
        {u"ExposureTime"_s, u"2"_s, u"1/1"_s},
        {u"ExposureTime"_s, u"1e-05, 2"_s, u"1/100000"_s},
        {u"ExposureTime"_s, u"0"_s, u"1/inf"_s},
        {u"ExposureTime"_s, u"nan"_s, u"1/inf"_s},
    });
}

}  // namespace
}  // namespace zelto
