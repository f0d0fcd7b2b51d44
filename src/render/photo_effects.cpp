// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_effects.h"

#include "pictures/parallel_rows.h"
#include "pictures/picture_reader.h"
#include "render/lengths.h"
#include "render/photo_shadow.h"
#include "render/qt_color.h"
#include "render/source_over.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace zelto {
namespace {

// Lengths that a file may hold, brought to where no sum of them overflows; none is below 0.
qint64 sane(std::int64_t length) {
    return std::clamp<qint64>(length, 0, MaximumPicturePixels);
}

// The effect with all its lengths as those pixels that they are on `photo`.
PhotoEffects inPixels(PhotoEffects effect, QSize photo) {
    const auto resolve = [&](const auto& fields) {
        for (const auto& field : fields) {
            effect.*field.Pixels = lengthOn(effect, field, photo);
            (effect.*field.Share).reset();
        }
    };
    resolve(length_field::Thicknesses);
    resolve(length_field::ShadowLengths);
    return effect;
}

struct Border {
    qint64 left = 0;
    qint64 top = 0;
    qint64 right = 0;
    qint64 bottom = 0;

    bool isEmpty() const { return left + top + right + bottom == 0; }
};

Border borderOf(const PhotoEffects& effect) {
    return {sane(effect.LeftThickness), sane(effect.TopThickness), sane(effect.RightThickness),
            sane(effect.BottomThickness)};
}

// The size of `photo` grown by these lengths; empty where a few bytes of a setting would make it take more memory than
// a large photo does.
QSize grownSize(QSize photo, qint64 wider, qint64 higher) {
    constexpr qint64 Always = qint64{1} << 26;  // pixels
    const qint64 most = std::min(MaximumPicturePixels, 2 * qint64{photo.width()} * photo.height() + Always);
    const qint64 width = photo.width() + wider;
    const qint64 height = photo.height() + higher;
    if (photo.isEmpty() || width > most / height) return {0, 0};
    return {static_cast<int>(width), static_cast<int>(height)};
}

// Where the shadow falls, as steps to the right and up.
struct Direction {
    std::int64_t degrees;
    int right;
    int up;
};
constexpr std::array<Direction, 8> Directions = {{{45, 1, 1},
                                                  {90, 0, 1},
                                                  {135, -1, 1},
                                                  {180, -1, 0},
                                                  {225, -1, -1},
                                                  {270, 0, -1},
                                                  {315, 1, -1},
                                                  {360, 1, 0}}};
constexpr std::int64_t EvenGlow = 0;

// One axis of a shadow's canvas: how much it grows, where the framed photo starts and how far the shadow
// moves.
struct ShadowAxis {
    qint64 growth = 0;
    qint64 place = 0;
    qint64 offset = 0;
};
struct ShadowPlan {
    ShadowAxis x;
    ShadowAxis y;  // upward
};

ShadowPlan shadowPlan(const PhotoEffects& effect) {
    const qint64 blur = sane(effect.BlurRadius);
    const qint64 distance = sane(effect.Distance);
    if (effect.Direction == EvenGlow) return {{blur, blur / 2, 0}, {blur, blur / 2, 0}};
    const auto* const direction = std::find_if(Directions.begin(), Directions.end(), [&](const Direction& d) {
        return d.degrees == effect.Direction;
    });
    if (direction == Directions.end()) return {};
    // A diagonal shares growth and distance between its axes; a straight one has them whole on its own.
    const bool diagonal = direction->right != 0 && direction->up != 0;
    const qint64 growth = diagonal ? (blur + distance) / 2 : blur + distance;
    const qint64 offset = diagonal ? growth : distance;
    const auto axis = [&](int step) {
        return ShadowAxis{std::abs(step) * growth, step < 0 ? growth : 0, step * offset};
    };
    return {axis(direction->right), axis(direction->up)};
}

bool isOpaque(const std::optional<Color>& color) {
    return color && color->Alpha >= 1.0F;
}

// A new picture whose pixels are still to be written; null where memory does not suffice.
QImage makeCanvas(QSize size, bool opaque) {
    return {size, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied};
}

// The border and the photo on it, written straight into `canvas` from `origin` (top left) on. Every pixel of
// the framed photo is written once, whatever was there before.
void drawFramed(QImage& canvas, QPoint origin, const QImage& photo, const Border& border, QRgb color) {
    const bool seeThrough = photo.hasAlphaChannel();
    const int left = static_cast<int>(border.left);
    const int top = static_cast<int>(border.top);
    const int width = left + photo.width() + static_cast<int>(border.right);
    const int height = top + photo.height() + static_cast<int>(border.bottom);
    uchar* const bits = canvas.bits();
    const qsizetype stride = canvas.bytesPerLine();
    parallelRows(height, width, [&](int first, int end) {
        for (int y = first; y < end; ++y) {
            QRgb* const row = reinterpret_cast<QRgb*>(bits + (origin.y() + y) * stride) + origin.x();
            if (y < top || y >= top + photo.height()) {
                std::fill(row, row + width, color);
                continue;
            }
            const auto* const pixels = reinterpret_cast<const QRgb*>(photo.constScanLine(y - top));
            std::fill(row, row + left, color);
            std::transform(pixels, pixels + photo.width(), row + left, [=](QRgb pixel) {
                return seeThrough ? sourceOver(pixel, color) : pixel | 0xFF00'0000U;
            });
            std::fill(row + left + photo.width(), row + width, color);
        }
    });
}

QRgb premultiplied(const std::optional<Color>& color) {
    return color ? qPremultiply(toQColor(*color).rgba()) : qRgba(0, 0, 0, 0);
}

// The photo in one of the two formats everything here reads.
void normalize(QImage& photo) {
    const QImage::Format format =
        photo.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    if (photo.format() != format) photo.convertTo(format);
}

}  // namespace

QImage ImagewithBorderEffect(QImage photo, const PhotoEffects& effect) {
    const Border border = borderOf(inPixels(effect, photo.size()));
    if (photo.isNull() || border.isEmpty()) return photo;
    const QSize size = framedSize(photo.size(), effect);
    if (size.isEmpty()) return {};
    QImage framed = makeCanvas(size, isOpaque(effect.BorderColor));
    normalize(photo);
    if (framed.isNull() || photo.isNull()) return {};
    drawFramed(framed, {0, 0}, photo, border, premultiplied(effect.BorderColor));
    return framed;
}

QImage imagewithEffects(QImage photo, const PhotoEffects& anyEffect, QRect& imageOrigin, QRect& borderOrigin,
                        bool final) {
    imageOrigin = borderOrigin = QRect(QPoint(0, 0), photo.size());
    if (photo.isNull()) return photo;
    const QSize photoSize = photo.size();
    const PhotoEffects effect = inPixels(anyEffect, photoSize);
    const Border border = borderOf(effect);
    const QSize framed = framedSize(photoSize, effect);
    if (framed.isEmpty()) return {};
    const FramedPlaces places = framedPlaces(photoSize, effect, final);
    const bool opaque = border.isEmpty() ? !photo.hasAlphaChannel() : isOpaque(effect.BorderColor);

    QImage canvas;
    const bool withShadow = final && effect.EnableShadow;
    const ShadowPlan plan = withShadow ? shadowPlan(effect) : ShadowPlan{};
    if (!withShadow || (opaque && plan.x.growth == 0 && plan.y.growth == 0)) {
        canvas = ImagewithBorderEffect(std::move(photo), effect);
    } else {
        if (places.size.isEmpty()) return {};
        canvas = makeCanvas(places.size, false);
        const QPoint place = places.border.topLeft();
        const QRect drawn({place.x(), canvas.height() - place.y() - framed.height()}, framed);
        const DropShadow shadow{
            {static_cast<int>(plan.x.offset), static_cast<int>(-plan.y.offset)},
            static_cast<int>(std::min<qint64>(sane(effect.BlurRadius), MaximumShadowBlur)),
            effect.ShadowColor.value_or(Color{0.0F, 0.0F, 0.0F, 0.0F})};
        QImage picture = opaque ? std::move(photo) : ImagewithBorderEffect(std::move(photo), effect);
        normalize(picture);
        if (canvas.isNull() || picture.isNull()) return {};
        if (opaque) {
            drawFramed(canvas, drawn.topLeft(), picture, border, premultiplied(effect.BorderColor));
            drawRectangleShadow(canvas, drawn, shadow);
        } else {
            drawPictureWithShadow(canvas, picture, drawn.topLeft(), shadow);
        }
    }
    borderOrigin = places.border;
    imageOrigin = places.image;
    return canvas;
}

FramedPlaces framedPlaces(QSize photo, const PhotoEffects& anyEffect, bool final) {
    const PhotoEffects effect = inPixels(anyEffect, photo);
    const Border border = borderOf(effect);
    const ShadowPlan plan = final && effect.EnableShadow ? shadowPlan(effect) : ShadowPlan{};
    const QSize framed = framedSize(photo, effect);
    const QSize size = final ? sizeWithEffects(photo, effect) : framed;
    if (framed.isEmpty() || size.isEmpty()) return {};
    const QPoint place(static_cast<int>(plan.x.place), static_cast<int>(plan.y.place));
    const QPoint inBorder(static_cast<int>(border.left), static_cast<int>(border.bottom));
    return {size, QRect(place + inBorder, photo), QRect(place, framed)};
}

PhotoEffects reducedEffect(const PhotoEffects& effect, QSize photo, QSize reduced) {
    PhotoEffects smaller = inPixels(effect, photo);
    const double factor = static_cast<double>(reduced.width()) / photo.width();
    const auto reduce = [&](const auto& fields) {
        for (const auto& field : fields) {
            smaller.*field.Pixels = std::llround(static_cast<double>(sane(smaller.*field.Pixels)) * factor);
        }
    };
    reduce(length_field::Thicknesses);
    reduce(length_field::ShadowLengths);
    return smaller;
}

QSize framedSize(QSize photo, const PhotoEffects& effect) {
    const Border border = borderOf(inPixels(effect, photo));
    return grownSize(photo, border.left + border.right, border.top + border.bottom);
}

QSize sizeWithEffects(QSize photo, const PhotoEffects& anyEffect) {
    const PhotoEffects effect = inPixels(anyEffect, photo);
    const Border border = borderOf(effect);
    const ShadowPlan plan = effect.EnableShadow ? shadowPlan(effect) : ShadowPlan{};
    return grownSize(photo, border.left + border.right + plan.x.growth,
                     border.top + border.bottom + plan.y.growth);
}

}  // namespace zelto
