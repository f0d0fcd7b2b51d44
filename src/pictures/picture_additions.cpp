// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_additions.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zelto {
namespace {

// The pixel rows of a picture that belongs to the caller alone.
template <class RowFunction>
void forEachRow(QImage& picture, RowFunction change) {
    for (int y = 0; y < picture.height(); ++y) {
        change(reinterpret_cast<QRgb*>(picture.scanLine(y)), picture.width());
    }
}

bool isWholeByte(float value) {
    return value >= 0.0F && value <= 255.0F && value == std::floor(value);
}

// Sizes that are whole but for rounding dust must not grow by a pixel.
int roundedUp(double size) {
    return std::max(1, static_cast<int>(std::ceil(size - 1e-6)));
}

QImage turnedBy(const QImage& picture, double degrees) {
    const double quarters = degrees / 90.0;
    if (quarters == std::floor(quarters)) {
        const int turns = static_cast<int>(std::fmod(quarters, 4.0) + 4.0) % 4;
        return turns == 0 ? picture : picture.transformed(QTransform().rotate(-90.0 * turns));
    }
    const double radians = degrees * std::numbers::pi / 180.0;
    const double width =
        picture.width() * std::abs(std::cos(radians)) + picture.height() * std::abs(std::sin(radians));
    const double height =
        picture.width() * std::abs(std::sin(radians)) + picture.height() * std::abs(std::cos(radians));
    QImage canvas(roundedUp(width), roundedUp(height), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(canvas.width() / 2.0, canvas.height() / 2.0);
    painter.rotate(-degrees);
    painter.drawImage(QPointF(-picture.width() / 2.0, -picture.height() / 2.0), picture);
    return canvas;
}

}  // namespace

QImage replaceColor(QImage picture, float red, float green, float blue, [[maybe_unused]] double tolerance) {
    const float bytes[] = {red * 255.0F, green * 255.0F, blue * 255.0F};
    if (!std::all_of(std::begin(bytes), std::end(bytes), isWholeByte)) return picture;
    const QRgb wanted =
        qRgba(static_cast<int>(bytes[0]), static_cast<int>(bytes[1]), static_cast<int>(bytes[2]), 0);
    picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    forEachRow(picture, [wanted](QRgb* row, int width) {
        for (int x = 0; x < width; ++x) row[x] = (row[x] & RGB_MASK) == wanted ? 0 : row[x];
    });
    return picture;
}

QImage imageWithOpacity(QImage picture, double opacity) {
    if (!(opacity < 1.0)) return picture;
    const auto factor = static_cast<quint32>(std::lround(std::max(opacity, 0.0) * 65536.0));
    const auto scaled = [factor](QRgb pixel, int shift) {
        return ((((pixel >> shift) & 0xffU) * factor + 0x8000U) >> 16U) << shift;
    };
    picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    forEachRow(picture, [scaled](QRgb* row, int width) {
        for (int x = 0; x < width; ++x) {
            row[x] = scaled(row[x], 24) | scaled(row[x], 16) | scaled(row[x], 8) | scaled(row[x], 0);
        }
    });
    return picture;
}

QImage imageRotatedByDegrees(const QImage& picture, double degrees, double opacity) {
    if (picture.isNull() || !std::isfinite(degrees)) return {};
    QImage turned = turnedBy(picture, degrees);
    turned.convertTo(QImage::Format_ARGB32_Premultiplied);
    return imageWithOpacity(std::move(turned), opacity);
}

}  // namespace zelto
