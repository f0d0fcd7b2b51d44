// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_rewriter.h"

#include "pictures/picture_reader.h"
#include "pictures/upright.h"
#include "support/ink.h"
#include "support/stored_jpeg.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace zelto {
namespace {

constexpr QRgb Ink = qRgb(190, 60, 40);
// Two marks far apart, one of them across the edge of the photo.
const std::vector<QRect> Marks = {{21, 13, 37, 20}, {90, 75, 400, 9}};

void draw(QImage& part, QPoint corner, const std::vector<QRect>& marks) {
    QPainter painter(&part);
    for (const QRect& mark : marks) painter.fillRect(mark.translated(-corner), QColor(Ink));
}

Result<QByteArray> marked(const QByteArray& photo, const std::vector<QRect>& marks) {
    auto file = std::make_unique<QBuffer>();
    file->setData(photo);
    file->open(QIODevice::ReadOnly);
    return JpegRewriter::open(std::move(file)).and_then([&](const std::unique_ptr<JpegRewriter>& jpeg) {
        return jpeg->rewrite(marks, [&](QImage& part, QPoint corner) { draw(part, corner, marks); });
    });
}

// Whether all that differs between two files lies in the sampling units of the marks.
::testing::AssertionResult onlyMarksDiffer(const StoredJpeg& before, const StoredJpeg& after,
                                           const std::vector<QRect>& marks) {
    if (after.components.empty()) return ::testing::AssertionFailure() << "it cannot be read";
    if (after.differenceFrom(before).isEmpty()) return ::testing::AssertionFailure() << "there is no mark";
    StoredJpeg rest = after;
    for (std::size_t i = 0; i < rest.components.size(); ++i) {
        StoredJpeg::Component& component = rest.components[i];
        if (component.data.size() != before.components[i].data.size())
            return ::testing::AssertionFailure() << "another sampling";
        for (std::size_t at = 0; at < component.data.size(); ++at) {
            const int width = component.blocks.width();
            const QRect pixels = component.pixelsOf(int(at) % width, int(at) / width);
            const bool isMarked =
                std::ranges::any_of(marks, [&](const QRect& mark) { return mark.intersects(pixels); });
            if (isMarked) component.data[at] = before.components[i].data[at];
        }
    }
    const QRect wrong = rest.differenceFrom(before);
    if (wrong.isEmpty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "changed at " << wrong.x() << "," << wrong.y() << " " << wrong.width() << "x" << wrong.height();
}

// By how many quantisation steps, at most, the luma of `picture` is off the coefficients that stand for the blocks
// under the marks. Half a step is what rounding costs; a level of the pixels' own rounding comes to it.
double stepsOff(const StoredJpeg& stored, const QImage& picture, const std::vector<QRect>& marks) {
    const StoredJpeg::Component& luma = stored.components[0];
    double most = 0.0;
    for (int by = 0; by < picture.height() / 8; ++by) {
        for (int bx = 0; bx < picture.width() / 8; ++bx) {
            const QRect pixels = luma.pixelsOf(bx, by);
            if (std::ranges::none_of(marks, [&](const QRect& mark) { return mark.intersects(pixels); }))
                continue;
            for (int v = 0; v < 8; ++v) {
                for (int u = 0; u < 8; ++u) {
                    double sum = 0.0;
                    for (int y = 0; y < 8; ++y) {
                        for (int x = 0; x < 8; ++x) {
                            const QRgb pixel = picture.pixel(pixels.x() + x, pixels.y() + y);
                            sum +=
                                (0.299 * qRed(pixel) + 0.587 * qGreen(pixel) + 0.114 * qBlue(pixel) - 128) *
                                std::cos((2 * x + 1) * u * std::numbers::pi / 16) *
                                std::cos((2 * y + 1) * v * std::numbers::pi / 16);
                        }
                    }
                    sum *= 0.25 * (u == 0 ? std::numbers::sqrt2 / 2 : 1) *
                           (v == 0 ? std::numbers::sqrt2 / 2 : 1);
                    const auto k = std::size_t(v * 8 + u);
                    constexpr double PixelRounding =
                        3.0;  // of 64 pixels that are each half a level off, in a coefficient
                    const double off =
                        std::abs(luma.at(bx, by)[k] * double(luma.table[k]) - sum) - PixelRounding;
                    most = std::max(most, off / luma.table[k]);
                }
            }
        }
    }
    return most;
}

TEST(JpegRewriter, OnlyBlocksUnderMarksChange) {
    const std::pair<const char*, TestJpeg> files[] = {
        {"4:4:4", {}},
        {"4:2:2", {.across = 2, .down = 1}},
        {"4:4:0", {.across = 1, .down = 2}},
        {"4:2:0", {.fullChroma = false}},
        {"4:1:1", {.across = 4, .down = 1}},
        {"grey", {.grey = true}},
        {"grey, two by two", {.across = 2, .down = 2, .grey = true}},
        {"progressive", {.fullChroma = false, .progressive = true}},
        {"tables of its own", {.fullChroma = false, .optimized = true}},
        {"restarts", {.fullChroma = false, .restartUnits = 5}},
        {"Adobe marker", {.adobe = true}},
        {"low quality", {.quality = 25, .fullChroma = false}},
    };
    for (const auto& [name, options] : files) {
        for (const QSize size : {QSize(176, 144), QSize(171, 133)}) {
            SCOPED_TRACE(name);
            const QByteArray photo = jpegBytes(drawnScene(size), options);
            const Result<QByteArray> written = marked(photo, Marks);
            ASSERT_TRUE(written) << qPrintable(written.error().message);
            const StoredJpeg after = storedJpeg(*written);
            EXPECT_TRUE(onlyMarksDiffer(storedJpeg(photo), after, Marks));
            QImage composed = decodePicture(photo)->image;
            draw(composed, {0, 0}, Marks);
            EXPECT_LE(stepsOff(after, composed, Marks), 0.5);
            EXPECT_LT(written->size(), photo.size() * 5 / 4 + 1000);
        }
    }
}

// A photo that is higher than what is drawn on at a time, with a mark from its top to its foot, ten times over.
TEST(JpegRewriter, TenGenerationsLeaveTheRestAsOnTheFirstDay) {
    const QByteArray photo = jpegBytes(drawnScene({320, 1400}), {.fullChroma = false});
    QByteArray last = photo;
    std::vector<QRect> marks;
    for (int i = 0; i < 10; ++i) {
        const QRect mark(10 + 20 * i, 5, 12, 1390);
        marks.push_back(mark);
        last = marked(last, {mark}).value();
    }
    EXPECT_TRUE(onlyMarksDiffer(storedJpeg(photo), storedJpeg(last), marks));
    EXPECT_LE(largestDifference(decodePicture(last)->image.pixel(200, 700), Ink), 12);
}

TEST(JpegRewriter, PhotosAreTurnedAsCoefficients) {
    constexpr QSize Size(160, 112);
    for (const bool progressive : {false, true}) {
        for (int orientation = 1; orientation <= 8; ++orientation) {
            SCOPED_TRACE(orientation);
            const QByteArray photo =
                jpegBytes(drawnScene(Size),
                          {.across = 2, .down = 1, .progressive = progressive, .orientation = orientation});
            const Result<QByteArray> written = marked(photo, Marks);
            ASSERT_TRUE(written) << qPrintable(written.error().message);
            // The places of the blocks, by turning a picture in which each pixel is the number of a block.
            const StoredJpeg before = storedJpeg(photo);
            const StoredJpeg after = storedJpeg(*written);
            const auto& luma = before.components[0];
            const QImage places =
                uprightPicture(pictureOf(luma.blocks, QImage::Format_RGB32,
                                         [&](int x, int y) { return QRgb(y * luma.blocks.width() + x); }),
                               orientation);
            ASSERT_EQ(after.components[0].blocks, places.size());
            int same = 0;
            for (int y = 0; y < places.height(); ++y) {
                for (int x = 0; x < places.width(); ++x) {
                    StoredJpeg::Block block =
                        luma.data[reinterpret_cast<const QRgb*>(places.constScanLine(y))[x]];
                    StoredJpeg::Block found = after.components[0].at(x, y);
                    for (short& value : block) value = short(std::abs(value));
                    for (short& value : found) value = short(std::abs(value));
                    std::ranges::sort(block);
                    std::ranges::sort(found);
                    if (block == found) ++same;
                }
            }
            EXPECT_GE(same, places.width() * places.height() * 3 / 4);
            // The signs of the coefficients show in the pixels.
            QImage composed = decodePicture(photo)->image;
            const QImage shown = decodePicture(*written)->image;
            const QRect free(0, 50, composed.width(), 13);
            EXPECT_LE(largestDifference(composed.copy(free), shown.copy(free)), 4);
        }
    }
}

TEST(JpegRewriter, WhatCannotBeTakenOverIsSaid) {
    const QImage odd = drawnScene({90, 70});
    const std::pair<QByteArray, const char*> files[] = {
        {jpegBytes(odd, {.fullChroma = false, .orientation = 2}), "width, 90 pixels, is no multiple of 16"},
        {jpegBytes(odd, {.orientation = 6}), "height, 70 pixels, is no multiple of 8"},
        {cmykJpegBytes(QByteArray(4 * 16 * 16, 'k'), {16, 16}, true, false), "YCbCr or grey"},
        {jpegBytes(odd).chopped(800), "cannot be taken over"},
        {"GIF89a", "no JPEG"},
    };
    for (const auto& [photo, reason] : files) {
        const Result<QByteArray> written = marked(photo, Marks);
        ASSERT_FALSE(written) << reason;
        EXPECT_TRUE(written.error().message.contains(QLatin1String(reason)))
            << qPrintable(written.error().message);
    }
    EXPECT_TRUE(marked(jpegBytes(odd, {.fullChroma = false, .orientation = 5}), Marks))
        << "needs no whole units";
}

// What the file shows is what its profile makes of it: the photo as before, and the mark in its own colour.
TEST(JpegRewriter, MarksAreConvertedIntoThePhotosColours) {
    for (const TestJpeg& options : {TestJpeg{.profile = adobeRgbProfile()}, TestJpeg{.dcfAdobeRgb = true}}) {
        const QByteArray photo = jpegBytes(drawnScene({160, 120}), options);
        const Result<QByteArray> written = marked(photo, Marks);
        ASSERT_TRUE(written) << qPrintable(written.error().message);
        EXPECT_TRUE(onlyMarksDiffer(storedJpeg(photo), storedJpeg(*written), Marks));
        const QImage before = decodePicture(photo)->image;
        const QImage after = decodePicture(*written)->image;
        EXPECT_EQ(after.pixel(80, 60), before.pixel(80, 60));
        EXPECT_LE(largestDifference(after.pixel(40, 22), Ink), 6);
    }
}

}  // namespace
}  // namespace zelto
