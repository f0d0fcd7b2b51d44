// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_rows.h"

#include <algorithm>

namespace zelto {
namespace {

void putRgb(QRgb pixel, uchar* out) {
    out[0] = static_cast<uchar>(qRed(pixel));
    out[1] = static_cast<uchar>(qGreen(pixel));
    out[2] = static_cast<uchar>(qBlue(pixel));
}

}  // namespace

void rowOnWhite(const QRgb* row, int width, QRgb* out) {
    for (int x = 0; x < width; ++x) {
        // No component of a premultiplied pixel is above its alpha, so nothing carries over.
        out[x] = (row[x] | 0xff000000U) + (0xffU - (row[x] >> 24U)) * 0x010101U;
    }
}

void rowOpaque(const QRgb* row, int width, QRgb* out) {
    for (int x = 0; x < width; ++x) out[x] = qUnpremultiply(row[x]) | 0xff000000U;
}

void rowAsAlpha(const QRgb* row, int width, uchar* out) {
    for (int x = 0; x < width; ++x) out[x] = static_cast<uchar>(row[x] >> 24U);
}

void rowAsRgb(const QRgb* row, int width, uchar* out) {
    for (int x = 0; x < width; ++x) putRgb(row[x], out + 3 * x);
}

void rowAsStraightRgba(const QRgb* row, int width, uchar* out) {
    for (int x = 0; x < width; ++x) {
        putRgb(qUnpremultiply(row[x]), out + 4 * x);
        out[4 * x + 3] = static_cast<uchar>(qAlpha(row[x]));
    }
}

}  // namespace zelto
