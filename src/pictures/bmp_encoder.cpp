// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_encoders.h"
#include "pictures/picture_rows.h"
#include "pictures/resolution.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <vector>

namespace zelto {

// Uncompressed 24-bit rows from the bottom up, the form every reader knows: Windows' BITMAPFILEHEADER and
// BITMAPINFOHEADER of 14 and 40 bytes, then blue, green, red, rows padded to four bytes.
Result<QByteArray> encodeBmp(const QImage& picture, const EncodeOptions& options) {
    constexpr quint32 HeaderBytes = 14 + 40;
    const int width = picture.width();
    const int height = picture.height();
    const qsizetype stride = (qsizetype{width} * 3 + 3) / 4 * 4;

    QByteArray bytes;
    bytes.reserve(HeaderBytes + stride * height);
    QDataStream header(&bytes, QIODevice::WriteOnly);
    header.setByteOrder(QDataStream::LittleEndian);
    header << quint16{0x4d42} << static_cast<quint32>(HeaderBytes + stride * height) << quint32{0}
           << HeaderBytes;
    header << quint32{40} << qint32{width} << qint32{height} << quint16{1} << quint16{24} << quint32{0}
           << static_cast<quint32>(stride * height) << dotsPerMeter(options.dpiX)
           << dotsPerMeter(options.dpiY) << quint32{0} << quint32{0};

    bytes.resize(HeaderBytes + stride * height);
    std::vector<QRgb> flat(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        rowOnWhite(pixelRow(picture, y), width, flat.data());
        auto* out = reinterpret_cast<uchar*>(bytes.data()) + HeaderBytes + stride * (height - 1 - y);
        for (const QRgb pixel : flat) {
            *out++ = static_cast<uchar>(qBlue(pixel));
            *out++ = static_cast<uchar>(qGreen(pixel));
            *out++ = static_cast<uchar>(qRed(pixel));
        }
        std::fill_n(out, stride - qsizetype{width} * 3, uchar{0});
    }
    return bytes;
}

}  // namespace zelto
