// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/color_profile.h"

#include "pictures/picture_reader.h"
#include "pictures/picture_writer.h"
#include "pictures/srgb_transfer.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QColorSpace>

#include <gtest/gtest.h>
#include <lcms2.h>

#include <cmath>

namespace zelto {
namespace {

constexpr int MiddleGrey = 119;  // L* 50

// Rounding to bytes once here and once there, and the profile's own fixed-point numbers.
constexpr int Tolerance = 2;

QByteArray saved(cmsHPROFILE profile) {
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(qsizetype(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsCloseProfile(profile);
    return bytes;
}

QByteArray greyProfile(double gamma) {
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    const QByteArray bytes = saved(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    return bytes;
}

// A profile of a table instead of curves: `lightness` (0 to 1) of full components is all a colour has.
QByteArray tableProfile(cmsColorSpaceSignature space, int channels,
                        double (*lightness)(const cmsUInt16Number*)) {
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.4);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, space);
    cmsSetPCS(profile, cmsSigLabData);
    const auto sample = [](const cmsUInt16Number in[], cmsUInt16Number out[],
                           void* function) -> cmsInt32Number {
        const cmsCIELab lab{100.0 * (*static_cast<double (**)(const cmsUInt16Number*)>(function))(in), 0.0,
                            0.0};
        cmsFloat2LabEncodedV2(out, &lab);
        return TRUE;
    };
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, cmsUInt32Number(channels), 3);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, 2, cmsUInt32Number(channels), 3, nullptr);
    cmsStageSampleCLut16bit(table, sample, &lightness, 0);
    cmsPipelineInsertStage(pipeline, cmsAT_END, table);
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsPipelineFree(pipeline);
    return saved(profile);
}

// Inks that no printer has: full cyan is a middle grey, and of the others only black prints.
QByteArray inkProfile() {
    return tableProfile(cmsSigCmykData, 4, [](const cmsUInt16Number* inks) {
        return (1.0 - inks[0] / 131070.0) * (1.0 - inks[3] / 65535.0);
    });
}

// Adobe RGB to sRGB by the primaries of both (both D65), in double precision.
QRgb srgbFromAdobe(QRgb adobe) {
    const auto light = [](int value) { return std::pow(value / 255.0, 2.19921875); };
    const double red = light(qRed(adobe));
    const double green = light(qGreen(adobe));
    const double blue = light(qBlue(adobe));
    const auto byte = [](double linear) {
        return int(std::lround(255.0 * srgbFromLinear(std::clamp(linear, 0.0, 1.0))));
    };
    return qRgba(byte(1.39836 * red - 0.39836 * green), byte(green), byte(1.04293 * blue - 0.04293 * green),
                 qAlpha(adobe));
}

QImage fromAdobe(const QImage& picture) {
    return pictureOf(picture.size(), picture.format(),
                     [&](int x, int y) { return srgbFromAdobe(picture.pixel(x, y)); });
}

QByteArray fileOf(const QImage& picture, const char* format) {
    QBuffer buffer;
    EXPECT_TRUE(picture.save(&buffer, format));
    return buffer.data();
}

TEST(ColorProfile, AdobeRgbBecomesSrgbInEveryDepthBeforeItIsPremultiplied) {
    const QImage opaque = drawnScene({240, 160});
    const QImage clear = drawnSceneWithAlpha({240, 160}).convertToFormat(QImage::Format_ARGB32);
    const struct {
        const QImage& scene;
        QImage::Format stored, read;
        const char* file;
    } rows[] = {{opaque, QImage::Format_RGB32, QImage::Format_RGB32, "png"},
                {opaque, QImage::Format_RGB32, QImage::Format_RGB32, "tiff"},
                {opaque, QImage::Format_RGBX64, QImage::Format_RGB32, "png"},
                {opaque, QImage::Format_RGBX64, QImage::Format_RGB32, "tiff"},
                {clear, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, "png"},
                {clear, QImage::Format_RGBA64, QImage::Format_ARGB32_Premultiplied, "png"}};
    for (const auto& row : rows) {
        QImage tagged = row.scene.convertToFormat(row.stored);
        tagged.setColorSpace(QColorSpace::fromIccProfile(adobeRgbProfile()));
        const QImage read = decodePicture(fileOf(tagged, row.file)).value_or(Picture()).image;
        EXPECT_EQ(read.format(), row.read) << row.file << row.stored;
        EXPECT_LE(largestDifference(read, fromAdobe(row.scene).convertToFormat(row.read)), Tolerance)
            << row.file << row.stored;
    }
    // JPEG photos follow their profile or the camera's word.
    const QImage expected = fromAdobe(decodePicture(jpegBytes(opaque))->image);
    for (const TestJpeg& options : {TestJpeg{.profile = adobeRgbProfile()}, TestJpeg{.dcfAdobeRgb = true}}) {
        EXPECT_LE(largestDifference(decodePicture(jpegBytes(opaque, options))->image, expected), Tolerance);
    }
}

TEST(ColorProfile, PicturesStayWhereTheProfileIsSrgbOrCannotBeUsed) {
    const QImage scene = drawnScene({240, 160});
    const QImage expected = decodePicture(jpegBytes(scene))->image;
    const QByteArray adobe = adobeRgbProfile();
    for (const QByteArray& profile :
         {saved(cmsCreate_sRGBProfile()), QColorSpace(QColorSpace::SRgb).iccProfile(), inkProfile(),
          adobe.first(adobe.size() / 2), QByteArray(300, 'x'),
          QByteArray(adobe).replace(128, 4, "\x7f\xff\xff\xff")}) {
        const Result<Picture> picture = decodePicture(jpegBytes(scene, {.profile = profile}));
        ASSERT_TRUE(picture);
        EXPECT_EQ(largestDifference(picture->image, expected), 0) << profile.size();
    }
}

TEST(ColorProfile, GreyProfilesChangeTheTone) {
    constexpr double Gamma = 1.4;
    const QImage ramp = pictureOf({256, 16}, QImage::Format_RGB32, [](int x, int) { return qRgb(x, x, x); });
    const QImage read =
        decodePicture(jpegBytes(ramp, {.quality = 100, .grey = true, .profile = greyProfile(Gamma)}))->image;
    for (int x = 8; x < 256; x += 31) {
        const int expected = int(std::lround(255.0 * srgbFromLinear(std::pow(x / 255.0, Gamma))));
        EXPECT_NEAR(qGreen(read.pixel(x, 8)), expected, 3) << x;  // and one level of JPEG error on the slope
        EXPECT_TRUE(qIsGray(read.pixel(x, 8)));
    }
}

TEST(ColorProfile, CmykFollowsItsProfile) {
    QByteArray pixels;
    for (int i = 0; i < 32 * 16; ++i)
        pixels += i % 32 < 16 ? QByteArray("\xFF\0\0\0", 4) : QByteArray("\0\xFF\xFF\0", 4);
    for (const bool adobe : {false, true}) {
        const Result<Picture> picture =
            decodePicture(cmykJpegBytes(pixels, {32, 16}, adobe, false, inkProfile()));
        ASSERT_TRUE(picture);
        EXPECT_NEAR(qGreen(picture->image.pixel(8, 8)), MiddleGrey, 3);
        EXPECT_GE(qGreen(picture->image.pixel(24, 8)), 252);
    }
}

TEST(ColorProfile, RgbFollowsAProfileOfTables) {
    const QByteArray greenOnly =
        tableProfile(cmsSigRgbData, 3, [](const cmsUInt16Number* colors) { return colors[1] / 65535.0; });
    const QImage patches = pictureOf({64, 32}, QImage::Format_RGB32, [](int x, int) {
        return x < 32 ? qRgb(255, 0, 30) : qRgb(10, 127, 200);
    });
    const QByteArray wide = withPngChunk(fileOf(patches.convertToFormat(QImage::Format_RGBX64), "png"),
                                         "iCCP", QByteArray("green\0\0", 7) + qCompress(greenOnly).sliced(4));
    for (const QByteArray& file : {jpegBytes(patches, {.quality = 100, .profile = greenOnly}), wide}) {
        const Result<Picture> picture = decodePicture(file);
        ASSERT_TRUE(picture);
        EXPECT_LE(qGreen(picture->image.pixel(16, 16)), 5);
        const QRgb right = picture->image.pixel(48, 16);
        EXPECT_LE(largestDifference(right, qRgb(MiddleGrey, MiddleGrey, MiddleGrey)), 3);
    }
}

TEST(ColorProfile, GammaOfAPngIsFollowedUnlessItOnlyMeansSrgb) {
    const QImage scene = drawnScene({64, 64});
    const QByteArray png = encodePicture(scene, PictureFormat::Png, {}).value();
    for (const quint32 gamma : {45455U, 100000U}) {  // in hundred-thousandths: 1 / 2.2, and 1
        const QByteArray big = QByteArray::fromHex(QByteArray::number(gamma, 16).rightJustified(8, '0'));
        const Result<Picture> picture = decodePicture(withPngChunk(png, "gAMA", big));
        ASSERT_TRUE(picture);
        EXPECT_EQ(largestDifference(picture->image, scene) > 0, gamma == 100000U);
    }
}

}  // namespace
}  // namespace zelto
