// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/exif_words.h"

#include "macros/text_numbers.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <span>

namespace zelto {
namespace {

struct Word {
    int code;
    const char* word;
};

struct WordTable {
    const char* key;
    std::initializer_list<Word> words;
    const char* otherwise = nullptr;  // for codes not listed; none leaves the value as it is
};

// Looked at before a value is compared with the name of the sensing method.
constexpr WordTable FirstTables[] = {
    {"LightSource",
     {{0, "unknown"},
      {1, "DayLight"},
      {2, "Fluorescent"},
      {3, "Tungsten"},
      {17, "Standard Light A"},
      {18, "Standard Light B"},
      {19, "Standard Light C"},
      {20, "D55"},
      {21, "D65"},
      {22, "D75"},
      {255, "Other"}},
     "Reserved"},
    {"MeteringMode",
     {{0, "unknown"},
      {1, "Average"},
      {2, "CenterWeightedAverage"},
      {3, "Spot"},
      {4, "MultiSpot"},
      {5, "Pattern"},
      {6, "Partial"},
      {255, "Other"}},
     "reserved"},
    {"Flash",
     {{0, "Flash did not fire"},
      {1, "Flash Fired"},
      {5, "Strobe return light not detected"},
      {7, "Strobe return light detected"},
      {9, "Flash fired, compulsory flash mode"},
      {13, "Flash fired, compulsory flash mode, return light not detected"},
      {15, "Flash fired, compulsory flash mode, return light detected"},
      {16, "Flash did not fire, compulsory flash mode"}},
     "reserved"},
    {"ApertureValue",
     {{0, "Not defined"},
      {1, "Manual"},
      {2, "Normal program"},
      {3, "Aperture priority"},
      {4, "Shutter priority"},
      {5, "Creative program (biased toward depth of field)"},
      {6, "Action program (biased toward fast shutter speed)"},
      {7, "Portrait mode (for closeup photos with the background out of focus)"},
      {8, "Landscape mode (for landscape photos with the background in focus)"}}},
};

constexpr WordTable SensingMethodTable = {"SensingMethod",
                                          {{1, "Not defined"},
                                           {2, "One-chip color area sensor"},
                                           {3, "Two-chip color area sensor"},
                                           {4, "Three-chip color area sensor"},
                                           {5, "Color sequential area sensor"},
                                           {7, "Trilinear sensor"},
                                           {8, "Color sequential linear sensor"}},
                                          "reserved"};

// Some of these keys live in other dictionaries than the two that macros read; nested ones may hold them.
constexpr WordTable Tables[] = {
    {"ExposureProgram",
     {{0, "Not Defined"},
      {1, "Manual"},
      {2, "Program AE"},
      {3, "Aperture-priority AE"},
      {4, "Shutter speed priority AE"},
      {5, "Creative (Slow speed)"},
      {6, "Action (High speed)"},
      {7, "Portrait"},
      {8, "Landscape"},
      {9, "Bulb"}}},
    {"SceneCaptureType", {{0, "Standard"}, {1, "Landscape"}, {2, "Portrait"}, {3, "Night scene"}}},
    {"CFAPattern",
     {{0, "Red"}, {1, "Green"}, {2, "Blue"}, {3, "Cyan"}, {4, "Magenta"}, {5, "Yellow"}, {6, "White"}}},
    {"GainControl",
     {{0, "None"}, {1, "Low gain up"}, {2, "High gain up"}, {3, "Low gain down"}, {4, "High gain down"}}},
    {"SubjectDistanceRange", {{0, "Unknown"}, {1, "Macro"}, {2, "Close view"}, {3, "Distant view"}}},
    {"Orientation",
     {{1, "Top Left"},
      {2, "Top RIght"},
      {3, "Bottom Right"},
      {4, "Bottom Left"},
      {5, "Left Top"},
      {6, "Right Top"},
      {7, "Right Bottom"},
      {8, "Left Bottom"}}},
    {"SampleFormat",
     {{1, "Unsigned"},
      {2, "Signed"},
      {3, "Float"},
      {4, "Undefined"},
      {5, "Complex int"},
      {6, "Complex float"}}},
    {"FaxProfile",
     {{0, "Unknown"},
      {1, "Minimal Black & White lossless, Profile S"},
      {2, "Extended Black & White lossless, Profile F"},
      {3, "Lossless JBIG Black & White, Profile J"},
      {4, "Lossy Color and Grayscale, Profile C"},
      {5, "Lossless Color and Grayscale, Profile L"},
      {6, "Mixed Raster Content, Profile M"},
      {7, "Profile T"},
      {255, "Multi Profiles"}}},
    {"CodingMethods",
     {{0, "Unspecified compression"},
      {1, "Modified Huffman"},
      {2, "Modified Read"},
      {3, "Modified MR"},
      {4, "JBIG"},
      {5, "Baseline JPEG"},
      {6, "JBIG color"}}},
    {"RasterPadding", {{0, "Byte"}, {1, "Word"}, {2, "Long Word"}, {9, "Sector"}, {10, "Long Sector"}}},
    {"SensitivityType",
     {{0, "Unknown"},
      {1, "Standard Output Sensitivity"},
      {2, "Recommended Exposure Index"},
      {3, "ISO Speed"},
      {4, "Standard Output Sensitivity and Recommended Exposure Index"},
      {5, "Standard Output Sensitivity and ISO Speed"},
      {6, "Recommended Exposure Index and ISO Speed"},
      {7, "Standard Output Sensitivity, Recommended Exposure Index and ISO Speed"}}},
    {"FocalPlaneResolutionUnit",
     {{1, "None"}, {2, "Inches"}, {3, "Centimeter"}, {4, "Millimeter"}, {5, "um"}}},
    {"Transformation",
     {{0, "Horizontal"},
      {1, "Mirror vertical"},
      {2, "Mirror horizontal"},
      {3, "Rotate 180"},
      {4, "Rotate 90 CW"},
      {5, "Mirror horizontal and rotate 90 CW"},
      {6, "Mirror horizontal and rotate 270 CW"},
      {7, "Rotate 270 CW"}}},
    {"ImageDataDiscard",
     {{0, "Full Resolution"},
      {1, "Flexbits Discarded"},
      {2, "HighPass Frequency Data Discarded"},
      {3, "Highpass and LowPass Frequency Data Discarded"}}},
    {"AlphaDataDiscard",
     {{0, "Full Resolution"},
      {1, "Flexbits Discarded"},
      {2, "HighPass Frequency Data Discarded"},
      {3, "Highpass and LowPass Frequency Data Discarded"}}},
    {"CFALayout",
     {{1, "Rectangular"},
      {2, "Even columns offset down 1/2 row"},
      {3, "Even columns offset up 1/2 row"},
      {4, "Even rows offset right 1/2 column"},
      {5, "Even rows offset left 1/2 column"},
      {6, "Even rows offset up by 1/2 row, even columns offset left by 1/2 column"},
      {7, "Even rows offset up by 1/2 row, even columns offset right by 1/2 column"},
      {8, "Even rows offset down by 1/2 row, even columns offset left by 1/2 column"},
      {9, "Even rows offset down by 1/2 row, even columns offset right by 1/2 column"}}},
    {"ProfileEmbedPolicy",
     {{0, "Allow Copying"}, {1, "Embed if Used"}, {2, "Never Embed"}, {3, "No Restrictions"}}},
    {"PreviewColorSpace",
     {{0, "Unknown"}, {1, "Gray Gamma 2.2"}, {2, "sRGB"}, {3, "Adobe RGB"}, {4, "ProPhoto RGB"}}},
    {"ResolutionUnit", {{1, "No-Unit"}, {2, "Inch"}, {3, "Centimeter"}}},
    {"SceneType", {{1, "A directly photographed image"}}, "Not a directly photographed image"},
    {"CustomRendered", {{0, "Normal process"}, {1, "Custom process"}}},
    {"ExposureMode", {{0, "Auto exposure"}, {1, "Manual exposure"}, {2, "Auto bracket"}}},
    {"WhiteBalance", {{0, "Auto white balance"}, {1, "Manual white balance"}}},
    {"Contrast", {{0, "Normal"}, {1, "Soft"}, {2, "Hard"}}},
    {"Sharpness", {{0, "Normal"}, {1, "Soft"}, {2, "Hard"}}},
    {"Saturation", {{0, "Normal"}, {1, "Low saturation"}, {2, "High saturation"}}},
    {"OldSubfileType",
     {{1, "Full-resolution image data"},
      {2, "Reduced-resolution image data"},
      {3, "A single page of a multi-page image"}}},
    {"Thresholding",
     {{1, "No dithering or halftoning has been applied to the image data."},
      {2, "An ordered dither or halftone technique has been applied to the image data."},
      {3, "A randomized process such as error diffusion has been applied to the image data."}}},
    {"PlanarConfiguration", {{1, "Chunky format"}, {2, "Planar format"}}},
    {"Predictor", {{1, "None"}, {2, "Horizontal differencing"}}},
    {"CleanFaxData", {{0, "Clean"}, {1, "Regenerated"}, {2, "Unclean"}}},
    {"InkSet", {{1, "CMYK"}, {2, "Not CMYK"}}},
    {"ExtraSamples", {{0, "Unspecified data"}, {1, "Associated alpha data"}, {2, "Unassociated alpha data"}}},
    {"Indexed", {{0, "Not Indexed"}, {1, "Indexed"}}},
    {"OPIProxy", {{0, "Higher resolution image does not exist"}, {1, "Higher resolution image exists"}}},
    {"ProfileType", {{0, "Unspecified"}, {1, "Group 3 fax"}}},
    {"JPEGProc", {{1, "Baseline Sequential Process"}, {14, "Lossless Process with Huffman coding"}}},
    {"YCbCrPositioning", {{1, "Centered"}, {2, "Co-sited"}}},
    {"MDFileTag", {{2, "Squary root data format"}, {128, "Linear data format"}}},
    {"ImageColorIndicator", {{0, "Unspecified Image Color"}, {1, "Specified Image Color"}}},
    {"BackgroundColorIndicator", {{0, "Unspecified Background Color"}, {1, "Specified Background Color"}}},
    {"HCUsage", {{0, "CT"}, {1, "Line Art"}, {2, "Trap"}}},
    {"Uncompressed", {{0, "No"}, {1, "Yes"}}},
    {"MakerNoteSafety", {{0, "Unsafe"}, {1, "Safe"}}},
};

const WordTable* find(std::span<const WordTable> tables, const QString& key) {
    const auto found =
        std::ranges::find_if(tables, [&](const WordTable& table) { return key == QLatin1String(table.key); });
    return found == tables.end() ? nullptr : &*found;
}

QString wordOf(const WordTable& table, const QString& text) {
    const qint64 code = IntegerValue(text);
    const auto found = std::ranges::find(table.words, code, &Word::code);
    if (found != table.words.end()) return QString::fromLatin1(found->word);
    return table.otherwise == nullptr ? text : QString::fromLatin1(table.otherwise);
}

// Always a fraction, also of a second or more. Single precision absorbs what the division leaves of a number
// such as 59.99999999999999 before it is rounded up.
QString exposureTime(const QString& text) {
    const float fraction = std::ceil(static_cast<float>(1.0 / DoubleValue(text)));
    return QLatin1String("1/") + QString::number(fraction, 'f', 0);
}

}  // namespace

QString GetExifValue(const QString& text, const QString& key) {
    if (text.isEmpty()) return text;
    if (const WordTable* table = find(FirstTables, key)) return wordOf(*table, text);
    // The value is compared here, not the key: a sensing method prints as its number.
    if (text == QLatin1String(SensingMethodTable.key)) return wordOf(SensingMethodTable, text);
    if (const WordTable* table = find(Tables, key)) return wordOf(*table, text);
    return key == QLatin1String("ExposureTime") ? exposureTime(text) : text;
}

}  // namespace zelto
