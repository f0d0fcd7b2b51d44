// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/color_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <random>

namespace zelto {
namespace {

TEST(ColorText, HasTheSpaceNameAndSixDecimalsAComponent) {
    EXPECT_EQ(stringRepresentationofColor(Color::white()),
              QStringLiteral("NSCalibratedRGBColorSpace 1.000000 1.000000 1.000000 1.000000"));
    EXPECT_EQ(stringRepresentationofColor({0.2F, 0.0F, 0.0000004F, 0.5F}),
              QStringLiteral("NSCalibratedRGBColorSpace 0.200000 0.000000 0.000000 0.500000"));
}

TEST(ColorText, OfFilesReadsBackToTheVerySameComponents) {
    std::mt19937 random(15);
    std::uniform_int_distribution<std::uint32_t> bits(0, std::bit_cast<std::uint32_t>(1.0F));
    for (int i = 0; i < 2560; ++i) {
        const float byte = static_cast<float>(i % 256) / 255.0F;
        const Color color{byte, 1.0F - byte, std::bit_cast<float>(bits(random)),
                          std::bit_cast<float>(bits(random))};
        EXPECT_EQ(colorFromString(exactColorText(color)), color);
    }
}

TEST(ColorText, IsReadFromTokensOneToFour) {
    const std::pair<const char*, std::optional<Color>> rows[] = {
        {"NSCalibratedRGBColorSpace 0.25 0.5 1 0.75", Color{0.25F, 0.5F, 1.0F, 0.75F}},
        {"NSDeviceCMYKColorSpace 0.25 0.5 1 0.75 0.5", Color{0.25F, 0.5F, 1.0F, 0.75F}},
        {" 0.25 0.5 1 0.75", Color{0.25F, 0.5F, 1.0F, 0.75F}},
        {"x 0.25  0.5 1 0.75", Color{0.25F, 0.0F, 0.5F, 1.0F}},
        {"x red 0,5 1e-1 1", Color{0.0F, 0.0F, 0.1F, 1.0F}},
        {"x nan inf -3 7", Color{0.0F, 1.0F, 0.0F, 1.0F}},
        {"x 1 1 1", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [text, color] : rows) EXPECT_EQ(colorFromString(QLatin1String(text)), color) << text;
}

TEST(ColorText, HexadecimalDigitCountsAreMadeEight) {
    const std::pair<const char*, std::uint32_t> rows[] = {
        {"#1aF", 0xFF11AAFFU},     {"1aF8", 0x8811AAFFU},   {"#102030", 0xFF102030U},
        {"10203040", 0x40102030U}, {"#12345", 0xFF012345U}, {"#1234567", 0x67012345U},
        {"f", 0xFF0000FFU},        {"#", 0xFF000000U},      {"ABCDE10203040", 0x40102030U},
        {"##102030", 0xFF000000U}, {"+1 2 3", 0xFF000000U}, {"rebeccapurple", 0xFF000000U},
    };
    for (const auto& [text, argb] : rows) {
        const auto part = [argb](int shift) { return static_cast<float>((argb >> shift & 0xFFU) / 255.0); };
        EXPECT_EQ(colorWithCSS(QLatin1String(text)), (Color{part(16), part(8), part(0), part(24)})) << text;
    }
}

}  // namespace
}  // namespace zelto
