// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_effects.h"

#include "pictures/parallel_rows.h"
#include "pictures/picture_reader.h"
#include "render/photo_shadow.h"
#include "render/qt_color.h"
#include "render/source_over.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace zelto {
namespace {

// Lengths that a file may hold, brought to where no sum of them overflows; none is below 0.
qint64 sane(std::int64_t length) {
    return std::clamp<qint64>(length, 0, MaximumPicturePixels);
}

struct Border {
    qint64 left = 0;
    qint64 top = 0;
    qint64 right = 0;
    qint64 bottom = 0;

    bool isEmpty() const { return left + top + right + bottom == 0; }
};

// The border of a photo; none where the framed photo would be larger than any picture may be.
Border borderFor(const PhotoEffects& effect, QSize photo) {
    const Border border{sane(effect.LeftThickness), sane(effect.TopThickness), sane(effect.RightThickness),
                        sane(effect.BottomThickness)};
    const qint64 width = photo.width() + border.left + border.right;
    const qint64 height = photo.height() + border.top + border.bottom;
    return width <= MaximumPicturePixels / height ? border : Border{};
}

QSize framedSize(QSize photo, const Border& border) {
    return photo.grownBy({static_cast<int>(border.left), static_cast<int>(border.top),
                          static_cast<int>(border.right), static_cast<int>(border.bottom)});
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

// Whether a picture may be that large.
bool isPossible(qint64 width, qint64 height) {
    return width <= MaximumPicturePixels && height <= MaximumPicturePixels &&
           width * height <= MaximumPicturePixels;
}

// A new picture whose pixels are still to be written; null where it would be larger than any picture may be.
QImage makeCanvas(qint64 width, qint64 height, bool opaque) {
    if (!isPossible(width, height)) return {};
    return {static_cast<int>(width), static_cast<int>(height),
            opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied};
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
    if (photo.isNull()) return photo;
    const Border border = borderFor(effect, photo.size());
    if (border.isEmpty()) return photo;
    const QSize size = framedSize(photo.size(), border);
    QImage framed = makeCanvas(size.width(), size.height(), isOpaque(effect.BorderColor));
    if (framed.isNull()) return photo;
    normalize(photo);
    drawFramed(framed, {0, 0}, photo, border, premultiplied(effect.BorderColor));
    return framed;
}

QImage imagewithEffects(QImage photo, const PhotoEffects& effect, QRect& imageOrigin, QRect& borderOrigin,
                        bool final) {
    imageOrigin = borderOrigin = QRect(QPoint(0, 0), photo.size());
    if (photo.isNull()) return photo;
    const QSize photoSize = photo.size();
    const Border border = borderFor(effect, photoSize);
    const QSize framed = framedSize(photoSize, border);
    const bool opaque = border.isEmpty() ? !photo.hasAlphaChannel() : isOpaque(effect.BorderColor);

    QImage canvas;
    QPoint place;  // of the framed photo on the canvas, y up
    const bool withShadow = final && effect.EnableShadow;
    const ShadowPlan plan = withShadow ? shadowPlan(effect) : ShadowPlan{};
    if (withShadow && !(opaque && plan.x.growth == 0 && plan.y.growth == 0)) {
        canvas = makeCanvas(framed.width() + plan.x.growth, framed.height() + plan.y.growth, false);
    }
    if (canvas.isNull()) {
        canvas = ImagewithBorderEffect(std::move(photo), effect);
    } else {
        place = {static_cast<int>(plan.x.place), static_cast<int>(plan.y.place)};
        const QRect drawn({place.x(), canvas.height() - place.y() - framed.height()}, framed);
        const DropShadow shadow{
            {static_cast<int>(plan.x.offset), static_cast<int>(-plan.y.offset)},
            static_cast<int>(std::min<qint64>(sane(effect.BlurRadius), MaximumShadowBlur)),
            effect.ShadowColor.value_or(Color{0.0F, 0.0F, 0.0F, 0.0F})};
        if (opaque) {
            normalize(photo);
            drawFramed(canvas, drawn.topLeft(), photo, border, premultiplied(effect.BorderColor));
            drawRectangleShadow(canvas, drawn, shadow);
        } else {
            QImage picture = ImagewithBorderEffect(std::move(photo), effect);
            normalize(picture);
            drawPictureWithShadow(canvas, picture, drawn.topLeft(), shadow);
        }
    }
    borderOrigin = QRect(place, framed);
    imageOrigin =
        QRect(place + QPoint(static_cast<int>(border.left), static_cast<int>(border.bottom)), photoSize);
    return canvas;
}

QSize framedSize(QSize photo, const PhotoEffects& effect) {
    return framedSize(photo, borderFor(effect, photo));
}

QSize sizeWithEffects(QSize photo, const PhotoEffects& effect) {
    const QSize framed = framedSize(photo, effect);
    if (!effect.EnableShadow) return framed;
    const ShadowPlan plan = shadowPlan(effect);
    const qint64 width = framed.width() + plan.x.growth;
    const qint64 height = framed.height() + plan.y.growth;
    return isPossible(width, height) ? QSize(static_cast<int>(width), static_cast<int>(height)) : framed;
}

}  // namespace zelto
