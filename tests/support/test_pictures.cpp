// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_pictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtEndian>

#include <exiv2/exiv2.hpp>
#include <jpeglib.h>
#include <lcms2.h>
#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace zelto {
namespace {

// Grain, so that no area is flat: the same pattern for the same place, on every machine.
void addGrain(QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            quint32 hash = static_cast<quint32>(x) * 0x9E3779B1U ^ static_cast<quint32>(y) * 0x85EBCA77U;
            hash = (hash ^ (hash >> 15)) * 0x2C1B3C6DU;
            const int grain = static_cast<int>(hash >> 29) - 4;
            line[x] =
                qRgb(std::clamp(qRed(line[x]) + grain, 0, 255), std::clamp(qGreen(line[x]) + grain, 0, 255),
                     std::clamp(qBlue(line[x]) + grain, 0, 255));
        }
    }
}

// Owns a compressor that writes to memory. libjpeg's own error handler ends the program, which fails the
// test.
class JpegCompressor {
  public:
    explicit JpegCompressor(QSize size) {
        info.err = jpeg_std_error(&errors_);
        jpeg_create_compress(&info);
        jpeg_mem_dest(&info, &data_, &length_);
        info.image_width = static_cast<JDIMENSION>(size.width());
        info.image_height = static_cast<JDIMENSION>(size.height());
    }
    ~JpegCompressor() {
        jpeg_destroy_compress(&info);
        std::free(data_);  // NOLINT(cppcoreguidelines-no-malloc): libjpeg allocated it
    }
    Q_DISABLE_COPY_MOVE(JpegCompressor)

    // Writes every row of `pixels`, rows `stride` bytes apart.
    QByteArray compress(const uchar* pixels, qsizetype stride, const QByteArray& exif,
                        const QByteArray& profile) {
        jpeg_start_compress(&info, TRUE);
        if (!exif.isEmpty()) {
            const QByteArray payload = QByteArray("Exif\0\0", 6) + exif;
            jpeg_write_marker(&info, JPEG_APP0 + 1, reinterpret_cast<const JOCTET*>(payload.constData()),
                              static_cast<unsigned>(payload.size()));
        }
        if (!profile.isEmpty()) {
            jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET*>(profile.constData()),
                                   static_cast<unsigned>(profile.size()));
        }
        while (info.next_scanline < info.image_height) {
            JSAMPROW row = const_cast<JSAMPROW>(pixels + stride * info.next_scanline);
            jpeg_write_scanlines(&info, &row, 1);
        }
        jpeg_finish_compress(&info);
        return {reinterpret_cast<const char*>(data_), static_cast<qsizetype>(length_)};
    }

    jpeg_compress_struct info{};

  private:
    jpeg_error_mgr errors_{};
    unsigned char* data_ = nullptr;
    unsigned long length_ = 0;
};

// The bytes of an EXIF block with these of `options`' values; empty when there are none.
QByteArray exifBytes(const TestJpeg& options) {
    Exiv2::ExifData exif;
    if (options.orientation != 0)
        exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(options.orientation);
    if (options.exifDpi != 0) {
        exif["Exif.Image.XResolution"] = Exiv2::Rational(options.exifDpi, 1);
        exif["Exif.Image.YResolution"] = Exiv2::Rational(options.exifDpi, 1);
        exif["Exif.Image.ResolutionUnit"] = std::uint16_t{2};
    }
    if (options.dcfAdobeRgb) {
        exif["Exif.Photo.ColorSpace"] = std::uint16_t{0xFFFF};
        exif["Exif.Iop.InteroperabilityIndex"] = "R03";
    }
    if (exif.empty()) return {};
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::bigEndian, exif);
    return {reinterpret_cast<const char*>(blob.data()), static_cast<qsizetype>(blob.size())};
}

}  // namespace

QImage drawnScene(QSize size) {
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width(), size.height());
    QLinearGradient sky(0, 0, 1, 0.6);
    sky.setColorAt(0.0, QColor(40, 90, 170));
    sky.setColorAt(1.0, QColor(250, 215, 170));
    painter.fillRect(QRectF(0, 0, 1, 1), sky);
    for (int hill = 0; hill < 3; ++hill) {
        QPainterPath path(QPointF(0, 1));
        for (double t = 0; t <= 1; t += 1 / 64.0)
            path.lineTo(t, 0.5 + 0.14 * hill - 0.07 * std::sin(t * (5 + 3 * hill) + 1.7 * hill));
        path.lineTo(1, 1);
        painter.fillPath(path, QColor(95 - 28 * hill, 125 - 27 * hill, 150 - 55 * hill));
    }
    painter.fillRect(QRectF(0.12, 0.55, 0.2, 0.22), QColor(190, 60, 45));  // a house and its fence
    painter.setPen(QPen(QColor(235, 230, 220), 1 / 800.0));
    for (double x = 0.4; x < 0.99; x += 0.015) painter.drawLine(QPointF(x, 0.8), QPointF(x + 0.004, 0.93));
    painter.end();
    addGrain(picture);
    return picture;
}

QImage drawnSceneWithAlpha(QSize size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const QImage scene = drawnScene(size);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double rim = std::min(size.width(), size.height()) * 0.05;
    painter.setBrush(QColor(220, 40, 60, 128));
    painter.drawEllipse(QRectF(QPointF(), size));
    painter.setBrush(QBrush(scene));
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawEllipse(QRectF(QPointF(), size).adjusted(rim, rim, -rim, -rim));
    return picture;
}

QImage pictureOf(QSize size, QImage::Format format, const std::function<QRgb(int x, int y)>& pixel) {
    QImage picture(size, format);
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) row[x] = pixel(x, y);
    }
    return picture;
}

QByteArray jpegBytes(const QImage& picture, const TestJpeg& options) {
    const QImage source =
        picture.convertToFormat(options.grey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    JpegCompressor jpeg(source.size());
    jpeg.info.input_components = options.grey ? 1 : 3;
    jpeg.info.in_color_space = options.grey ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&jpeg.info);
    jpeg_set_quality(&jpeg.info, options.quality, TRUE);
    if (options.fullChroma) jpeg.info.comp_info[0].h_samp_factor = jpeg.info.comp_info[0].v_samp_factor = 1;
    if (options.across != 0) {
        jpeg.info.comp_info[0].h_samp_factor = options.across;
        jpeg.info.comp_info[0].v_samp_factor = options.down;
    }
    jpeg.info.optimize_coding = options.optimized ? TRUE : FALSE;
    jpeg.info.restart_interval = options.restartUnits;
    jpeg.info.write_Adobe_marker = options.adobe ? TRUE : FALSE;
    if (options.progressive) jpeg_simple_progression(&jpeg.info);
    jpeg.info.write_JFIF_header = options.jfifDensity != 0;
    jpeg.info.density_unit = static_cast<UINT8>(options.jfifUnit);
    jpeg.info.X_density = static_cast<UINT16>(options.jfifDensity);
    jpeg.info.Y_density =
        static_cast<UINT16>(options.jfifDensityY != 0 ? options.jfifDensityY : options.jfifDensity);
    return jpeg.compress(source.constBits(), source.bytesPerLine(), exifBytes(options), options.profile);
}

QByteArray cmykJpegBytes(const QByteArray& pixels, QSize size, bool adobe, bool ycck,
                         const QByteArray& profile) {
    QByteArray stored = pixels;
    if (adobe) {
        for (char& ink : stored) ink = static_cast<char>(~ink);
    }
    JpegCompressor jpeg(size);
    jpeg.info.input_components = 4;
    jpeg.info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&jpeg.info);
    jpeg_set_colorspace(&jpeg.info, ycck ? JCS_YCCK : JCS_CMYK);
    jpeg.info.comp_info[0].h_samp_factor = jpeg.info.comp_info[0].v_samp_factor = 1;
    jpeg.info.comp_info[3].h_samp_factor = jpeg.info.comp_info[3].v_samp_factor = 1;
    jpeg_set_quality(&jpeg.info, 95, TRUE);
    jpeg.info.write_Adobe_marker = adobe;
    return jpeg.compress(reinterpret_cast<const uchar*>(stored.constData()), qsizetype{4} * size.width(), {},
                         profile);
}

QByteArray withPngChunk(QByteArray png, const char* type, const QByteArray& data) {
    const auto bigEndian = [](quint32 value) {
        const quint32 stored = qToBigEndian(value);
        return QByteArray(reinterpret_cast<const char*>(&stored), sizeof stored);
    };
    const QByteArray chunk = type + data;
    const auto sum = static_cast<quint32>(
        crc32(0, reinterpret_cast<const Bytef*>(chunk.constData()), static_cast<uInt>(chunk.size())));
    constexpr qsizetype BehindHeader = 33;
    return png.insert(BehindHeader, bigEndian(static_cast<quint32>(data.size())) + chunk + bigEndian(sum));
}

QByteArray adobeRgbProfile() {
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.19921875);
    cmsToneCurve* curves[] = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(static_cast<qsizetype>(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsCloseProfile(profile);
    cmsFreeToneCurve(curve);
    return bytes;
}

}  // namespace zelto
