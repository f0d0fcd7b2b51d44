// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_decoder.h"

#include "pictures/color_profile.h"
#include "pictures/jpeg_file.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_memory.h"
#include "pictures/upright.h"

#include <algorithm>
#include <array>
#include <vector>

namespace zelto {
namespace {

class PixelDecoder {
  public:
    explicit PixelDecoder(JpegFile& file) : file_(file), info_(file.info()) {}

    // Decodes at the least of 1, 1/2, 1/4 and 1/8 of the size that covers `bound` (stored, not upright).
    void shrinkTo(QSize bound) {
        for (unsigned divisor = 8; divisor > 1; divisor /= 2) {
            const QSize shrunk = file_.storedSize() / static_cast<int>(divisor);
            if (shrunk.width() < bound.width() || shrunk.height() < bound.height()) continue;
            info_.scale_num = 1;
            info_.scale_denom = divisor;
            return;
        }
    }

    bool isCmyk() const { return info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK; }
    InkScale inkScale() const { return info_.saw_Adobe_marker ? InkScale::FullIs0 : InkScale::FullIs255; }

    // All pixels, upright: RGB32, or the four CMYK bytes per pixel where isCmyk(). A null picture for a damaged
    // file.
    QImage decode(int orientation) {
        jpeg_calc_output_dimensions(&info_);
        output_ = QSize(static_cast<int>(info_.output_width), static_cast<int>(info_.output_height));
        file_.limitScans();
        QImage picture = newPicture(uprightSize(output_, orientation), QImage::Format_RGB32);
        info_.out_color_space = isCmyk() ? JCS_CMYK : OpaqueQRgbOrder;
        const bool done = file_.guarded([&] { jpeg_start_decompress(&info_); }) &&
                          (orientation == 1 ? decodeRows(picture) : decodeTurned(orientation, picture)) &&
                          file_.guarded([&] { jpeg_finish_decompress(&info_); });
        return done ? picture : QImage();
    }

  private:
    bool decodeRows(QImage& picture) {
        uchar* bits = picture.bits();
        const qsizetype stride = picture.bytesPerLine();
        return file_.guarded([&] {
            while (info_.output_scanline < info_.output_height) {
                readRows(bits + stride * info_.output_scanline, stride,
                         info_.output_height - info_.output_scanline);
            }
        });
    }

    bool decodeTurned(int orientation, QImage& picture) {
        constexpr JDIMENSION BandRows = 64;
        std::vector<quint32> band(std::size_t{BandRows} * info_.output_width);
        const auto stride = static_cast<qsizetype>(info_.output_width * sizeof(quint32));
        while (info_.output_scanline < info_.output_height) {
            const JDIMENSION first = info_.output_scanline;
            const JDIMENSION count = std::min(BandRows, info_.output_height - first);
            const bool read = file_.guarded([&] {
                while (info_.output_scanline < first + count) {
                    const JDIMENSION done = info_.output_scanline - first;
                    readRows(reinterpret_cast<uchar*>(band.data()) + stride * done, stride, count - done);
                }
            });
            if (!read) return false;
            placeUpright(band.data(), static_cast<int>(first), static_cast<int>(count), output_, orientation,
                         picture);
        }
        return true;
    }

    // As many of the next `count` rows as libjpeg has ready.
    void readRows(uchar* target, qsizetype stride, JDIMENSION count) {
        std::array<JSAMPROW, 8> rows;
        const JDIMENSION wanted = std::min<JDIMENSION>(count, rows.size());
        for (JDIMENSION i = 0; i < wanted; ++i) rows[i] = target + stride * i;
        jpeg_read_scanlines(&info_, rows.data(), wanted);
    }

    JpegFile& file_;
    jpeg_decompress_struct& info_;
    QSize output_;  // pixels as decoded, not upright
};

}  // namespace

std::optional<PictureNeeds> jpegNeeds(QIODevice& device) {
    JpegFile file(device);
    if (!file.readHeader()) return std::nullopt;
    // Turned while it is decoded.
    const int orientation = file.exif().orientation;
    PictureNeeds needs{uprightSize(file.storedSize(), orientation), file.memoryToDecode()};
    const auto [dpiX, dpiY] = file.resolution();
    setResolution(needs, dpiX, dpiY, orientation);
    return needs;
}

std::optional<Picture> decodeJpeg(QIODevice& device, QSize bound) {
    JpegFile file(device);
    if (!file.readHeader()) return std::nullopt;
    const int orientation = file.exif().orientation;
    const QByteArray profile = file.colors();

    PixelDecoder decoder(file);
    if (!bound.isEmpty()) decoder.shrinkTo(uprightSize(bound, orientation));
    Picture picture;
    picture.image = decoder.decode(orientation);
    if (picture.image.isNull()) return std::nullopt;
    if (decoder.isCmyk()) {
        convertCmykToSrgb(picture.image, decoder.inkScale(), profile);
    } else {
        picture.image = convertedToSrgb(std::move(picture.image), profile);
    }
    const auto [dpiX, dpiY] = file.resolution();
    setResolution(picture, dpiX, dpiY, orientation);
    return picture;
}

}  // namespace zelto
