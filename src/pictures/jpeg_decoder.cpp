// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_decoder.h"

#include "pictures/color_profile.h"
#include "pictures/device_bytes.h"
#include "pictures/exif_facts.h"
#include "pictures/libjpeg.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_memory.h"
#include "pictures/upright.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace zelto {
namespace {

// A progressive file needs ten or so; thousands are an attempt to keep the program busy.
constexpr int MaximumScans = 500;
// Every scan goes through all blocks, even those it says nothing about. So many visits of blocks take some seconds; files
// that have the bytes to say something new at each visit may have more.
constexpr qint64 QuickBlockVisits = qint64{1} << 27;
constexpr qint64 BlockVisitsPerByte = 64;
constexpr qint64 BlockPixels = DCTSIZE2;

// libjpeg only warns where pixels are lost and goes on with grey ones.
void judgeMessage(j_common_ptr info, int level) {
    constexpr int LosesPixels[] = {JWRN_JPEG_EOF, JWRN_HIT_MARKER, JWRN_HUFF_BAD_CODE, JWRN_ARITH_BAD_CODE,
                                   JWRN_MUST_RESYNC};
    if (level < 0 && std::ranges::find(LosesPixels, info->err->msg_code) != std::end(LosesPixels))
        escapeWithJpegMessage(info);
}

// libjpeg's progress report, with what the scans may cost in all.
struct ScanLimit {
    jpeg_progress_mgr base;  // first, so that libjpeg's pointer to it is a pointer to the whole
    qint64 scans = MaximumScans;
};

void limitScans(j_common_ptr info) {
    if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number >
        reinterpret_cast<ScanLimit*>(info->progress)->scans)
        escapeWithJpegMessage(info);
}

void stayQuiet(j_common_ptr) {}

// Feeds libjpeg from a device.
struct Source {
    jpeg_source_mgr base;  // first, so that libjpeg's pointer to it is a pointer to the whole
    QIODevice* device;
    std::array<JOCTET, 1 << 16> buffer;
};

void nothingToDo(j_decompress_ptr) {}

boolean fillBuffer(j_decompress_ptr info) {
    auto* source = reinterpret_cast<Source*>(info->src);
    const qint64 got = readBytes(*source->device, source->buffer.data(), qint64{sizeof source->buffer});
    if (got <= 0) WARNMS(info, JWRN_JPEG_EOF);  // does not come back
    source->base.next_input_byte = source->buffer.data();
    source->base.bytes_in_buffer = static_cast<std::size_t>(got);
    return TRUE;
}

void skipInput(j_decompress_ptr info, long count) {
    auto* source = reinterpret_cast<Source*>(info->src);
    auto left = static_cast<std::size_t>(std::max(count, 0L));
    while (left > source->base.bytes_in_buffer) {
        left -= source->base.bytes_in_buffer;
        fillBuffer(info);
    }
    source->base.next_input_byte += left;
    source->base.bytes_in_buffer -= left;
}

// One file being decoded. Every call into libjpeg that can fail goes through guarded(), so that its way out
// of an error, a long jump, never passes over an object with a destructor.
class JpegFile {
  public:
    explicit JpegFile(QIODevice& device) : fileBytes_(device.size()) {
        info_.err = jpeg_std_error(&errors_.manager);
        errors_.manager.error_exit = escapeWithJpegMessage;
        errors_.manager.emit_message = judgeMessage;
        errors_.manager.output_message = stayQuiet;
        progress_.base.progress_monitor = limitScans;
        source_.base.init_source = nothingToDo;
        source_.base.fill_input_buffer = fillBuffer;
        source_.base.skip_input_data = skipInput;
        source_.base.resync_to_restart = jpeg_resync_to_restart;
        source_.base.term_source = nothingToDo;
        source_.device = &device;
        guarded([&] {
            jpeg_create_decompress(&info_);
            info_.progress = &progress_.base;
            info_.src = &source_.base;
        });
    }
    ~JpegFile() { jpeg_destroy_decompress(&info_); }
    Q_DISABLE_COPY_MOVE(JpegFile)

    bool readHeader() {
        return guarded([&] {
                   jpeg_save_markers(&info_, JPEG_APP0 + 1, 0xFFFF);
                   jpeg_save_markers(&info_, JPEG_APP0 + 2, 0xFFFF);
                   jpeg_read_header(&info_, TRUE);
               }) &&
               !storedSize().isEmpty();
    }

    // Pixels, and the coefficients of all blocks where they come in more than one scan. Some of libjpeg's rows are left
    // out: they are nothing beside the buffers of any other step.
    qint64 memory() {
        const qint64 coefficients =
            jpeg_has_multiple_scans(&info_) ? blocks() * BlockPixels * qint64{sizeof(JCOEF)} : 0;
        return pixelCount(storedSize()) * qint64{sizeof(QRgb)} + coefficients;
    }

    // Decodes at the least of 1, 1/2, 1/4 and 1/8 of the size that covers `bound` (stored, not upright).
    void shrinkTo(QSize bound) {
        for (unsigned divisor = 8; divisor > 1; divisor /= 2) {
            const QSize shrunk = storedSize() / static_cast<int>(divisor);
            if (shrunk.width() < bound.width() || shrunk.height() < bound.height()) continue;
            info_.scale_num = 1;
            info_.scale_denom = divisor;
            return;
        }
    }

    QSize storedSize() const {
        return {static_cast<int>(info_.image_width), static_cast<int>(info_.image_height)};
    }

    ExifFacts exifFacts() const {
        constexpr QByteArrayView Signature("Exif\0\0", 6);
        for (auto* marker = info_.marker_list; marker != nullptr; marker = marker->next) {
            const QByteArrayView data(marker->data, qsizetype{marker->data_length});
            if (marker->marker == JPEG_APP0 + 1 && data.startsWith(Signature)) {
                return readExifFacts(data.sliced(Signature.size()));
            }
        }
        return {};
    }

    // The embedded ICC profile, empty when there is none.
    QByteArray profile() {
        JOCTET* data = nullptr;
        unsigned length = 0;
        if (!guarded([&] { jpeg_read_icc_profile(&info_, &data, &length); }) || data == nullptr) return {};
        QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype{length});
        std::free(data);  // NOLINT(cppcoreguidelines-no-malloc): libjpeg allocated it
        return bytes;
    }

    // Dots per inch by the JFIF header, where it states a unit.
    std::optional<std::pair<double, double>> jfifResolution() const {
        if (!info_.saw_JFIF_marker || (info_.density_unit != 1 && info_.density_unit != 2))
            return std::nullopt;
        const double perInch = info_.density_unit == 1 ? 1.0 : 2.54;
        return std::pair(info_.X_density * perInch, info_.Y_density * perInch);
    }

    bool isCmyk() const { return info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK; }
    InkScale inkScale() const { return info_.saw_Adobe_marker ? InkScale::FullIs0 : InkScale::FullIs255; }

    // All pixels, upright: RGB32, or the four CMYK bytes per pixel where isCmyk(). A null picture for a damaged
    // file.
    QImage decode(int orientation) {
        jpeg_calc_output_dimensions(&info_);
        output_ = QSize(static_cast<int>(info_.output_width), static_cast<int>(info_.output_height));
        progress_.scans =
            std::min<qint64>(MaximumScans, (QuickBlockVisits + BlockVisitsPerByte * fileBytes_) /
                                               std::max(blocks(), qint64{1}));
        QImage picture = newPicture(uprightSize(output_, orientation), QImage::Format_RGB32);
        // BGRA rather than BGRX: only the former promises the 255 that a QImage without alpha expects.
        info_.out_color_space = isCmyk() ? JCS_CMYK : JCS_EXT_BGRA;
        const bool done = guarded([&] { jpeg_start_decompress(&info_); }) &&
                          (orientation == 1 ? decodeRows(picture) : decodeTurned(orientation, picture)) &&
                          guarded([&] { jpeg_finish_decompress(&info_); });
        return done ? picture : QImage();
    }

  private:
    template <class Step>
    bool guarded(Step step) {
        // NOLINTNEXTLINE(cert-err52-cpp): libjpeg's only way out of an error
        if (setjmp(errors_.escape) != 0) return false;
        step();
        return true;
    }

    // Of all components together.
    qint64 blocks() const {
        qint64 count = 0;
        for (int i = 0; i < info_.num_components; ++i)
            count += qint64{info_.comp_info[i].width_in_blocks} * info_.comp_info[i].height_in_blocks;
        return count;
    }

    bool decodeRows(QImage& picture) {
        uchar* bits = picture.bits();
        const qsizetype stride = picture.bytesPerLine();
        return guarded([&] {
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
            const bool read = guarded([&] {
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

    qint64 fileBytes_;
    QSize output_;  // pixels as decoded, not upright
    jpeg_decompress_struct info_{};
    Source source_{};
    JpegErrors errors_;
    ScanLimit progress_{};
};

}  // namespace

std::optional<PictureNeeds> jpegNeeds(QIODevice& device) {
    JpegFile file(device);
    if (!file.readHeader()) return std::nullopt;
    // Turned while it is decoded.
    return PictureNeeds{uprightSize(file.storedSize(), file.exifFacts().orientation), file.memory(), 0};
}

std::optional<Picture> decodeJpeg(QIODevice& device, QSize bound) {
    JpegFile file(device);
    if (!file.readHeader()) return std::nullopt;
    const ExifFacts exif = file.exifFacts();
    QByteArray profile = file.profile();
    if (profile.isEmpty() && exif.isDcfAdobeRgb) profile = adobeRgb1998Profile();

    if (!bound.isEmpty()) file.shrinkTo(uprightSize(bound, exif.orientation));
    Picture picture;
    picture.image = file.decode(exif.orientation);
    if (picture.image.isNull()) return std::nullopt;
    if (file.isCmyk()) {
        convertCmykToSrgb(picture.image, file.inkScale(), profile);
    } else {
        picture.image = convertedToSrgb(std::move(picture.image), profile);
    }
    const auto [dpiX, dpiY] = file.jfifResolution().value_or(std::pair(exif.dpiX, exif.dpiY));
    setResolution(picture, dpiX, dpiY, exif.orientation);
    return picture;
}

}  // namespace zelto
