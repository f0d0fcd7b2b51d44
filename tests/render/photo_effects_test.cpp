// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_effects.h"

#include "records/length_field.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <vector>

namespace zelto {
namespace {

constexpr Color Red{1.0F, 0.0F, 0.0F, 1.0F};
constexpr Color HalfBlue{0.0F, 0.0F, 1.0F, 0.5F};

PhotoEffects bare() {
    PhotoEffects effect;
    effect.LeftThickness = effect.TopThickness = effect.RightThickness = effect.BottomThickness = 0;
    effect.EnableShadow = false;
    return effect;
}

PhotoEffects bordered() {
    PhotoEffects effect = bare();
    effect.LeftThickness = 1;
    effect.TopThickness = 2;
    effect.RightThickness = 3;
    effect.BottomThickness = 4;
    effect.BorderColor = Red;
    return effect;
}

struct Framed {
    QImage picture;
    QRect image;
    QRect border;
};

Framed apply(QImage photo, const PhotoEffects& effect, bool final = true) {
    Framed result;
    result.picture = imagewithEffects(std::move(photo), effect, result.image, result.border, final);
    return result;
}

// What a blurred line holds at one place: every value seen through the weights exp(-i^2 / 2 sigma^2), sigma half
// the blur, -blur <= i <= blur.
double blurredAt(int at, const std::vector<double>& line, int blur) {
    double sum = 0;
    double weights = 0;
    for (int i = -blur; i <= blur; ++i) {
        const double weight = blur == 0 ? 1 : std::exp(-2.0 * i * i / blur / blur);
        weights += weight;
        if (at + i >= 0 && at + i < int(line.size())) sum += weight * line[std::size_t(at + i)];
    }
    return sum / weights;
}

// `framed`, whose rows all have the alphas of the first, with its shadow. `place` and `offset` count from the
// canvas's lower left.
QImage slowShadow(QImage framed, QSize canvas, QPoint place, QPoint offset, int blur, const Color& color) {
    framed = storedValues(framed);
    const QPoint corner(place.x(), canvas.height() - place.y() - framed.height());
    std::vector<double> alphas;
    for (int x = 0; x < framed.width(); ++x) alphas.push_back(qAlpha(framed.pixel(x, 0)));
    const std::vector<double> ones(std::size_t(framed.height()), 1.0);
    std::vector<double> across;
    std::vector<double> down;
    for (int x = 0; x < canvas.width(); ++x)
        across.push_back(blurredAt(x - corner.x() - offset.x(), alphas, blur));
    for (int y = 0; y < canvas.height(); ++y)
        down.push_back(blurredAt(y - corner.y() + offset.y(), ones, blur));
    return pictureOf(canvas, QImage::Format_ARGB32_Premultiplied, [&](int x, int y) {
        const QPoint in = QPoint(x, y) - corner;
        const QRgb over = framed.rect().contains(in) ? framed.pixel(in) : 0;
        const double shade = across[std::size_t(x)] * down[std::size_t(y)] * double(color.Alpha) *
                             (255 - qAlpha(over)) / 255.0;
        const auto part = [&](int own, float component) { return qRound(own + double(component) * shade); };
        return qRgba(part(qRed(over), color.Red), part(qGreen(over), color.Green),
                     part(qBlue(over), color.Blue), part(qAlpha(over), 1.0F));
    });
}

// Of the premultiplied values.
int worstDifference(const QImage& a, const QImage& b) {
    return largestDifference(storedValues(a), storedValues(b));
}

TEST(PhotoEffects, FramesThePhotoOnItsBorder) {
    const QImage photo = drawnScene({40, 30});
    for (const bool final : {false, true}) {
        const Framed framed = apply(photo, bordered(), final);
        ASSERT_EQ(framed.picture.size(), QSize(44, 36));
        EXPECT_EQ(framed.border, QRect(0, 0, 44, 36));
        EXPECT_EQ(framed.image, QRect(1, 4, 40, 30));
        EXPECT_EQ(framed.picture.copy(1, 2, 40, 30), photo);
        for (const QPoint p : {QPoint(0, 2), QPoint(1, 1), QPoint(43, 31), QPoint(41, 35), QPoint(1, 32)}) {
            EXPECT_EQ(framed.picture.pixelColor(p), QColor(Qt::red)) << p.x() << "," << p.y();
        }
        EXPECT_EQ(framed.picture, ImagewithBorderEffect(photo, bordered()));
    }
}

TEST(PhotoEffects, ATransparentPhotoShowsTheBorderColorAndATransparentBorderStaysSo) {
    const QImage photo = pictureOf({2, 1}, QImage::Format_ARGB32_Premultiplied,
                                   [](int x, int) { return x == 0 ? 0U : qRgba(0, 100, 0, 128); });
    PhotoEffects effect = bare();
    effect.LeftThickness = 1;  // one side alone is a border all the same
    effect.BorderColor = Red;
    const QImage onRed = apply(photo, effect).picture;
    EXPECT_FALSE(onRed.hasAlphaChannel());
    EXPECT_EQ(onRed.pixel(1, 0), qRgb(255, 0, 0));
    EXPECT_EQ(onRed.pixel(2, 0), qRgb(127, 100, 0));

    effect.BorderColor = HalfBlue;
    const QImage onBlue = storedValues(apply(photo, effect).picture);
    EXPECT_LE(largestDifference(onBlue.pixel(1, 0), qRgba(0, 0, 128, 128)), 1);
    EXPECT_LE(largestDifference(onBlue.pixel(2, 0), qRgba(0, 100, 64, 192)), 1);
}

TEST(PhotoEffects, EveryDirectionMovesAndGrowsAsItShould) {
    // Blur 5 and distance 6: an odd sum, so that halves are cut down.
    const struct {
        int direction;
        QSize growth;
        QPoint place, offset;
    } rows[] = {
        {0, {5, 5}, {2, 2}, {0, 0}},      {45, {5, 5}, {0, 0}, {5, 5}},     {90, {0, 11}, {0, 0}, {0, 6}},
        {135, {5, 5}, {5, 0}, {-5, 5}},   {180, {11, 0}, {11, 0}, {-6, 0}}, {225, {5, 5}, {5, 5}, {-5, -5}},
        {270, {0, 11}, {0, 11}, {0, -6}}, {315, {5, 5}, {0, 5}, {5, -5}},   {360, {11, 0}, {0, 0}, {6, 0}},
        {17, {0, 0}, {0, 0}, {0, 0}},
    };
    PhotoEffects effect = bordered();
    effect.EnableShadow = true;
    effect.BlurRadius = 5;
    effect.Distance = 6;
    effect.ShadowColor = HalfBlue;
    const QImage photo = drawnScene({40, 30});
    const QImage framed = ImagewithBorderEffect(photo, effect);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.direction);
        effect.Direction = row.direction;
        const Framed shadowed = apply(photo, effect);
        const QSize canvas = framed.size() + row.growth;
        EXPECT_EQ(shadowed.border, QRect(row.place, framed.size()));
        EXPECT_EQ(shadowed.image, QRect(row.place + QPoint(1, 4), photo.size()));
        EXPECT_LE(
            worstDifference(shadowed.picture, slowShadow(framed, canvas, row.place, row.offset, 5, HalfBlue)),
            1);
        EXPECT_EQ(apply(photo, effect, false).picture, framed) << "the preview shows no shadow";
    }
    effect.EnableShadow = false;
    EXPECT_EQ(apply(photo, effect).picture, framed);
}

TEST(PhotoEffects, TheShadowIsAGaussianOfTheAlphaAtEveryBlur) {
    for (const int blur : {0, 1, 2, 7, 15, 16, 40, 100}) {
        for (const bool seeThrough : {false, true}) {
            PhotoEffects effect = bare();
            effect.EnableShadow = true;
            effect.BlurRadius = blur;
            effect.Distance = 9;
            effect.Direction = 225;
            effect.ShadowColor = Color{0.2F, 0.9F, 0.4F, 0.75F};
            const QImage photo = pictureOf(
                {130, 90}, seeThrough ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32,
                [&](int x, int y) {
                    return qPremultiply(qRgba(2 * x, 2 * y, 90, seeThrough ? 40 + x * x % 200 : 255));
                });
            const int k = (blur + 9) / 2;
            const QImage expected =
                slowShadow(photo, photo.size() + QSize(k, k), {k, k}, {-k, -k}, blur, *effect.ShadowColor);
            // Opaque photos are exact but for rounding; wide blurs of others are read between coarser cells.
            EXPECT_LE(worstDifference(apply(photo, effect).picture, expected), seeThrough ? 2 : 1)
                << "blur " << blur << ", transparent " << seeThrough;
        }
    }
}

TEST(PhotoEffects, SharesAreThoseOfTheShorterSideOfEachPhoto) {
    PhotoEffects pixels = bordered();
    pixels.TopThickness = pixels.LeftThickness = pixels.RightThickness = pixels.BottomThickness = 4;
    pixels.EnableShadow = true;
    pixels.BlurRadius = 6;
    pixels.Distance = 2;
    PhotoEffects shares = pixels;
    for (const auto& field : length_field::Thicknesses) shares.*field.Share = 0.04F;
    shares.BlurRadiusShare = 0.06F;
    shares.DistanceShare = 0.02F;
    shares.TopThickness = shares.BlurRadius = shares.Distance = 77;
    QRect image;
    QRect border;
    const QImage photo = drawnScene({150, 100});
    EXPECT_EQ(imagewithEffects(photo, shares, image, border, true),
              imagewithEffects(photo, pixels, image, border, true));
    EXPECT_EQ(framedSize({4000, 6000}, shares), QSize(4320, 6320));
}

TEST(PhotoEffects, NothingToDrawGivesThePhotoUntouched) {
    PhotoEffects effect = bare();
    effect.LeftThickness = -7;  // a damaged file's; as good as none
    effect.EnableShadow = true;
    QImage photo = drawnScene({20, 10});
    const uchar* const pixels = photo.constBits();
    const Framed framed = apply(std::move(photo), effect);
    EXPECT_EQ(framed.picture.constBits(), pixels);
    EXPECT_TRUE(framed.image == QRect(0, 0, 20, 10) && framed.border == framed.image);
}

TEST(PhotoEffects, ThereIsNoPictureWhereItWouldOutgrowThePhotoByFar) {
    const QImage photo = drawnScene({20, 10});
    for (const std::int64_t length : {std::int64_t{16'384}, std::numeric_limits<std::int64_t>::max()}) {
        PhotoEffects border = bordered();
        border.LeftThickness = border.TopThickness = length;
        EXPECT_TRUE(apply(photo, border).picture.isNull());
        EXPECT_TRUE(ImagewithBorderEffect(photo, border).isNull());
        PhotoEffects shadow = bordered();
        shadow.EnableShadow = true;
        shadow.Distance = shadow.BlurRadius = length;
        shadow.Direction = 45;
        EXPECT_TRUE(apply(photo, shadow).picture.isNull());
        EXPECT_TRUE(sizeWithEffects(photo.size(), shadow).isEmpty());
        EXPECT_EQ(apply(photo, shadow, false).picture.size(), QSize(24, 16))
            << "without its shadow it is small";
    }
}

}  // namespace
}  // namespace zelto
