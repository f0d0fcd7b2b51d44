// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_patches.h"

#include "pictures/jpeg_compressor.h"
#include "pictures/jpeg_file.h"
#include "pictures/picture_memory.h"
#include "pictures/picture_rows.h"

#include <QBuffer>

#include <algorithm>

namespace zelto {
namespace {

// Natural order, as libjpeg keeps it.
void transpose(JQUANT_TBL& table) {
    for (std::size_t v = 0; v < DCTSIZE; ++v) {
        for (std::size_t u = 0; u < v; ++u)
            std::swap(table.quantval[v * DCTSIZE + u], table.quantval[u * DCTSIZE + v]);
    }
}

// In sampling units.
QRect unitsCovering(const QRect& pixels, QSize unit) {
    const QPoint first(pixels.left() / unit.width(), pixels.top() / unit.height());
    const QPoint last(pixels.right() / unit.width(), pixels.bottom() / unit.height());
    return {first, last};
}

std::vector<JpegBand::Columns> columnsIn(const std::vector<QRect>& areas, int first, int end) {
    std::vector<JpegBand::Columns> found;
    for (const QRect& area : areas) {
        if (area.top() < end && area.bottom() >= first) found.push_back({area.left(), area.right() + 1});
    }
    std::ranges::sort(found, {}, &JpegBand::Columns::first);
    std::vector<JpegBand::Columns> apart;
    for (const JpegBand::Columns& columns : found) {
        if (!apart.empty() && columns.first <= apart.back().end) {
            apart.back().end = std::max(apart.back().end, columns.end);
        } else {
            apart.push_back(columns);
        }
    }
    return apart;
}

}  // namespace

void copyParameters(jpeg_decompress_struct& source, const Turn& turn, const JpegGeometry& geometry,
                    jpeg_compress_struct& codec) {
    jpeg_copy_critical_parameters(&source, &codec);
    codec.image_width = static_cast<JDIMENSION>(geometry.size.width());
    codec.image_height = static_cast<JDIMENSION>(geometry.size.height());
    if (!turn.swapsAxes) return;
    for (int i = 0; i < codec.num_components; ++i)
        std::swap(codec.comp_info[i].h_samp_factor, codec.comp_info[i].v_samp_factor);
    for (JQUANT_TBL* table : codec.quant_tbl_ptrs) {
        if (table != nullptr) transpose(*table);
    }
}

namespace {

// A file that has the frame and the quantisation tables of a part, and of its coefficients only zeros. Empty where
// libjpeg fails.
QByteArray frameOf(const JpegGeometry& geometry, jpeg_decompress_struct& source, const Turn& turn) {
    JpegBlocks zeros(geometry, 1);
    zeros.finishReading();
    jpeg_scan_info scan{};  // the mean of each block alone
    for (int i = 0; i < source.num_components; ++i) scan.component_index[scan.comps_in_scan++] = i;
    JpegCompressor compressor;
    const bool done = compressor.guarded([&](jpeg_compress_struct& codec) {
        copyParameters(source, turn, geometry, codec);
        codec.scan_info = &scan;
        codec.num_scans = 1;
        jpeg_write_coefficients(&codec, zeros.give(codec));
        jpeg_finish_compress(&codec);
    });
    return done ? compressor.takeFile() : QByteArray();
}

}  // namespace

QImage pixelsOf(JpegBlocks& blocks, const JpegGeometry& geometry, jpeg_decompress_struct& source,
                const Turn& turn) {
    QByteArray frame = frameOf(geometry, source, turn);
    QBuffer buffer(&frame);
    buffer.open(QIODevice::ReadOnly);
    JpegFile file(buffer);
    if (!file.readHeader()) return {};
    jpeg_decompress_struct& info = file.info();
    info.out_color_space = OpaqueQRgbOrder;
    info.buffered_image = TRUE;
    info.do_block_smoothing = FALSE;
    blocks.show(info);
    QImage pixels = newPicture(geometry.size, QImage::Format_RGB32);
    uchar* const bits = pixels.bits();
    const qsizetype stride = pixels.bytesPerLine();
    const bool done = file.guarded([&] {
        jpeg_start_decompress(&info);
        while (jpeg_consume_input(&info) != JPEG_REACHED_EOI) {
        }
        jpeg_start_output(&info, info.input_scan_number);
        while (info.output_scanline < info.output_height) {
            JSAMPROW row = bits + stride * info.output_scanline;
            jpeg_read_scanlines(&info, &row, 1);
        }
    });
    return done ? pixels : QImage();
}

std::unique_ptr<JpegBlocks> blocksOf(const QImage& pixels, const JpegGeometry& geometry,
                                     jpeg_decompress_struct& source, const Turn& turn) {
    auto blocks = std::make_unique<JpegBlocks>(geometry, geometry.units.height());
    JpegCompressor compressor;
    // A file of several scans has all its coefficients before the first scan is written. It is never finished.
    const bool done = compressor.guarded([&](jpeg_compress_struct& codec) {
        copyParameters(source, turn, geometry, codec);
        codec.input_components = 4;
        codec.in_color_space = QRgbOrder;
        jpeg_simple_progression(&codec);
        blocks->receive(codec);
        jpeg_start_compress(&codec, TRUE);
        while (codec.next_scanline < codec.image_height) {
            const auto* row =
                reinterpret_cast<const JSAMPLE*>(pixelRow(pixels, static_cast<int>(codec.next_scanline)));
            // libjpeg only reads the rows; its interface has no const.
            JSAMPROW rows[] = {const_cast<JSAMPROW>(row)};  // NOLINT
            jpeg_write_scanlines(&codec, rows, 1);
        }
    });
    return done ? std::move(blocks) : nullptr;
}

std::vector<JpegBand> bandsOf(const std::vector<QRect>& areas, const JpegGeometry& geometry, int mostRows) {
    std::vector<QRect> touched;  // in sampling units
    std::vector<bool> isTouched(static_cast<std::size_t>(geometry.units.height()));
    for (const QRect& area : areas) {
        const QRect inside = area.intersected(QRect(QPoint(0, 0), geometry.size));
        if (inside.isEmpty()) continue;
        touched.push_back(unitsCovering(inside, geometry.unit));
        std::fill_n(isTouched.begin() + touched.back().top(), touched.back().height(), true);
    }
    std::vector<JpegBand> bands;
    for (int row = 0; row < geometry.units.height(); ++row) {
        if (!isTouched[static_cast<std::size_t>(row)]) continue;
        const bool goesOn = !bands.empty() && bands.back().end == row && row - bands.back().first < mostRows;
        if (!goesOn) bands.push_back({row, row, {}});
        bands.back().end = row + 1;
    }
    for (JpegBand& band : bands) band.columns = columnsIn(touched, band.first, band.end);
    return bands;
}

}  // namespace zelto
