// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_shadow.h"

#include "pictures/parallel_rows.h"
#include "pictures/rounding.h"
#include "render/blurred_alpha.h"
#include "render/qt_color.h"
#include "render/source_over.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace zelto {
namespace {

// The premultiplied shadow colour under each of the 256 levels of blurred alpha.
std::array<QRgb, 256> tints(const Color& color) {
    const QColor c = toQColor(color);
    std::array<QRgb, 256> levels{};
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const float alpha = c.alphaF() * static_cast<float>(level);
        const auto part = [alpha](float component) { return rounded(component * alpha); };
        levels[level] = qRgba(part(c.redF()), part(c.greenF()), part(c.blueF()), part(1.0F));
    }
    return levels;
}

// How much of the blur's weight falls on [start, start + length) seen from each of the pixels 0 ... count
// - 1.
std::vector<float> edgeProfile(int count, int start, int length, int blur) {
    const std::vector<float> weights = gaussianWeights(blur);
    std::vector<double> sums(weights.size() + 1, 0.0);  // of the weights before each one
    for (std::size_t i = 0; i < weights.size(); ++i) sums[i + 1] = sums[i] + weights[i];
    const auto before = [&](int position) {
        return sums[static_cast<std::size_t>(
            std::clamp<std::int64_t>(std::int64_t{position} + blur, 0, 2 * blur + 1))];
    };
    std::vector<float> profile(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        profile[static_cast<std::size_t>(i)] =
            static_cast<float>(before(start + length - i) - before(start - i));
    }
    return profile;
}

int drawnBlur(const DropShadow& shadow) {
    return std::clamp(shadow.blur, 0, MaximumShadowBlur);
}

QRgb* row(uchar* bits, qsizetype stride, int y) {
    return reinterpret_cast<QRgb*>(bits + y * stride);
}

}  // namespace

void drawRectangleShadow(QImage& canvas, const QRect& rectangle, const DropShadow& shadow) {
    const QRect caster = rectangle.translated(shadow.offset);
    const int width = canvas.width();
    const std::vector<float> across = edgeProfile(width, caster.x(), caster.width(), drawnBlur(shadow));
    const std::vector<float> down =
        edgeProfile(canvas.height(), caster.y(), caster.height(), drawnBlur(shadow));
    const std::array<QRgb, 256> tint = tints(shadow.color);
    uchar* const bits = canvas.bits();
    const qsizetype stride = canvas.bytesPerLine();
    parallelRows(canvas.height(), width, [&](int first, int end) {
        for (int y = first; y < end; ++y) {
            QRgb* const pixels = row(bits, stride, y);
            const float level = down[static_cast<std::size_t>(y)] * 255.0F;
            const auto draw = [&](int from, int to) {
                for (int x = from; x < to; ++x) {
                    pixels[x] =
                        tint[static_cast<std::size_t>(rounded(across[static_cast<std::size_t>(x)] * level))];
                }
            };
            const bool beside = y >= rectangle.top() && y <= rectangle.bottom();
            draw(0, beside ? std::clamp(rectangle.left(), 0, width) : width);
            if (beside) draw(std::clamp(rectangle.left() + rectangle.width(), 0, width), width);
        }
    });
}

void drawPictureWithShadow(QImage& canvas, const QImage& picture, QPoint origin, const DropShadow& shadow) {
    const BlurredAlpha blurred(picture, drawnBlur(shadow));
    const std::array<QRgb, 256> tint = tints(shadow.color);
    const QPoint casterOrigin = origin + shadow.offset;
    const int width = canvas.width();
    const int left = std::clamp(origin.x(), 0, width);  // of the picture's columns on the canvas
    const int right = std::clamp(origin.x() + picture.width(), left, width);
    uchar* const bits = canvas.bits();
    const qsizetype stride = canvas.bytesPerLine();
    parallelRows(canvas.height(), width, [&](int first, int end) {
        BlurredAlpha::Reader reader(blurred, -casterOrigin.x(), width);
        for (int y = first; y < end; ++y) {
            QRgb* const pixels = row(bits, stride, y);
            reader.setRow(y - casterOrigin.y());
            const auto drawShadow = [&](int from, int to) {
                for (int x = from; x < to; ++x) pixels[x] = tint[reader.level(x)];
            };
            const int pictureRow = y - origin.y();
            if (pictureRow < 0 || pictureRow >= picture.height()) {
                drawShadow(0, width);
                continue;
            }
            drawShadow(0, left);
            const auto* const over = reinterpret_cast<const QRgb*>(picture.constScanLine(pictureRow));
            for (int x = left; x < right; ++x) {
                const QRgb pixel = over[x - origin.x()];
                const bool opaque = qAlpha(pixel) == 255;  // most of most pictures: nothing shows through
                pixels[x] = opaque ? pixel : sourceOver(pixel, tint[reader.level(x)]);
            }
            drawShadow(right, width);
        }
    });
}

}  // namespace zelto
