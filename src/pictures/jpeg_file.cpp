// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_file.h"

#include "pictures/color_profile.h"
#include "pictures/device_bytes.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace zelto {
namespace {

// A progressive file needs ten or so; thousands are an attempt to keep the program busy.
constexpr int MaximumScans = 500;
// Every scan goes through all blocks, even those it says nothing about. So many visits of blocks take some seconds;
// files that have the bytes to say something new at each visit may have more.
constexpr qint64 QuickBlockVisits = qint64{1} << 27;
constexpr qint64 BlockVisitsPerByte = 64;

// libjpeg only warns where pixels are lost and goes on with grey ones.
void judgeMessage(j_common_ptr info, int level) {
    constexpr int LosesPixels[] = {JWRN_JPEG_EOF, JWRN_HIT_MARKER, JWRN_HUFF_BAD_CODE, JWRN_ARITH_BAD_CODE,
                                   JWRN_MUST_RESYNC};
    if (level < 0 && std::ranges::find(LosesPixels, info->err->msg_code) != std::end(LosesPixels))
        escapeWithJpegMessage(info);
}

void stayQuiet(j_common_ptr) {}

void nothingToDo(j_decompress_ptr) {}

}  // namespace

JpegFile::JpegFile(QIODevice& device) : fileBytes_(device.size()) {
    info_.err = jpeg_std_error(&errors_.manager);
    errors_.manager.error_exit = escapeWithJpegMessage;
    errors_.manager.emit_message = judgeMessage;
    errors_.manager.output_message = stayQuiet;
    progress_.base.progress_monitor = watchProgress;
    progress_.scans = MaximumScans;
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

boolean JpegFile::fillBuffer(j_decompress_ptr info) {
    auto* source = reinterpret_cast<Source*>(info->src);
    const qint64 got = readBytes(*source->device, source->buffer.data(), qint64{sizeof source->buffer});
    if (got <= 0) WARNMS(info, JWRN_JPEG_EOF);  // does not come back
    source->base.next_input_byte = source->buffer.data();
    source->base.bytes_in_buffer = static_cast<std::size_t>(got);
    return TRUE;
}

void JpegFile::skipInput(j_decompress_ptr info, long count) {
    auto* source = reinterpret_cast<Source*>(info->src);
    auto left = static_cast<std::size_t>(std::max(count, 0L));
    while (left > source->base.bytes_in_buffer) {
        left -= source->base.bytes_in_buffer;
        fillBuffer(info);
    }
    source->base.next_input_byte += left;
    source->base.bytes_in_buffer -= left;
}

void JpegFile::watchProgress(j_common_ptr codec) {
    auto* const info = reinterpret_cast<j_decompress_ptr>(codec);
    auto* const progress = reinterpret_cast<Progress*>(codec->progress);
    if (info->input_scan_number > progress->scans) escapeWithJpegMessage(codec);
    if (progress->stopAtRow != 0 && info->input_iMCU_row >= progress->stopAtRow)
        std::longjmp(progress->stop, 1);
}

bool JpegFile::readHeader() {
    const bool read = guarded([&] {
        jpeg_save_markers(&info_, JPEG_APP0 + 1, 0xFFFF);
        jpeg_save_markers(&info_, JPEG_APP0 + 2, 0xFFFF);
        jpeg_read_header(&info_, TRUE);
    });
    if (!read || storedSize().isEmpty()) return false;
    exif_ = readExif();
    return true;
}

qint64 JpegFile::memoryToDecode() {
    const qint64 coefficients = jpeg_has_multiple_scans(&info_) ? blocks() * qint64{sizeof(JBLOCK)} : 0;
    return pixelCount(storedSize()) * qint64{sizeof(QRgb)} + coefficients;
}

ExifFacts JpegFile::readExif() const {
    constexpr QByteArrayView Signature("Exif\0\0", 6);
    for (auto* marker = info_.marker_list; marker != nullptr; marker = marker->next) {
        const QByteArrayView data(marker->data, qsizetype{marker->data_length});
        if (marker->marker == JPEG_APP0 + 1 && data.startsWith(Signature)) {
            return readExifFacts(data);
        }
    }
    return {};
}

QByteArray JpegFile::profile() {
    JOCTET* data = nullptr;
    unsigned length = 0;
    if (!guarded([&] { jpeg_read_icc_profile(&info_, &data, &length); }) || data == nullptr) return {};
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype{length});
    std::free(data);  // NOLINT(cppcoreguidelines-no-malloc): libjpeg allocated it
    return bytes;
}

QByteArray JpegFile::colors() {
    QByteArray embedded = profile();
    return embedded.isEmpty() && exif_.isDcfAdobeRgb ? adobeRgb1998Profile() : embedded;
}

std::pair<double, double> JpegFile::resolution() const {
    if (!info_.saw_JFIF_marker || (info_.density_unit != 1 && info_.density_unit != 2))
        return {exif_.dpiX, exif_.dpiY};
    const double perInch = info_.density_unit == 1 ? 1.0 : 2.54;
    return {info_.X_density * perInch, info_.Y_density * perInch};
}

qint64 JpegFile::blocks() const {
    qint64 count = 0;
    for (int i = 0; i < info_.num_components; ++i)
        count += qint64{info_.comp_info[i].width_in_blocks} * info_.comp_info[i].height_in_blocks;
    return count;
}

void JpegFile::limitScans() {
    progress_.scans = std::min<qint64>(
        MaximumScans, (QuickBlockVisits + BlockVisitsPerByte * fileBytes_) / std::max(blocks(), qint64{1}));
}

QByteArray JpegFile::takeRest() {
    const auto buffered = static_cast<qsizetype>(source_.base.bytes_in_buffer);
    QByteArray rest(buffered + static_cast<qsizetype>(fileBytes_ - source_.device->pos()), Qt::Uninitialized);
    std::memcpy(rest.data(), source_.base.next_input_byte, source_.base.bytes_in_buffer);
    const qint64 got = readBytes(*source_.device, rest.data() + buffered, rest.size() - buffered);
    rest.truncate(buffered + static_cast<qsizetype>(std::max(got, qint64{0})));
    return rest;
}

bool JpegFile::readCoefficients(JDIMENSION unitRows) {
    const bool stops = unitRows < info_.total_iMCU_rows && !jpeg_has_multiple_scans(&info_);
    progress_.stopAtRow = stops ? unitRows : 0;
    return guarded([this] {
        // What is left by this jump is in order: it takes up reading at the next call.
        // NOLINTNEXTLINE(cert-err52-cpp): libjpeg offers no call that reads a part of the coefficients
        if (setjmp(progress_.stop) == 0) jpeg_read_coefficients(&info_);
    });
}

}  // namespace zelto
