// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_additions.h"

#include "pictures/lengths.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

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

}  // namespace

QImage replaceColor(QImage picture, float red, float green, float blue) {
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

QImage imageRotatedByDegrees(const QImage& picture, std::int64_t degrees) {
    if (picture.isNull()) return {};
    const std::int64_t turn = (degrees % 360 + 360) % 360;
    if (turn % 90 == 0) {
        QImage turned =
            turn == 0 ? picture : picture.transformed(QTransform().rotate(-static_cast<double>(turn)));
        turned.convertTo(QImage::Format_ARGB32_Premultiplied);
        return turned;
    }
    const QSizeF size = rotatedSize(picture.size(), turn);
    QImage canvas(static_cast<int>(wholePixels(size.width())), static_cast<int>(wholePixels(size.height())),
                  QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull()) return canvas;
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(canvas.width() / 2.0, canvas.height() / 2.0);
    painter.rotate(-static_cast<double>(turn));
    painter.drawImage(QPointF(-picture.width() / 2.0, -picture.height() / 2.0), picture);
    return canvas;
}

}  // namespace zelto
