// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_patches.h"

#include "pictures/jpeg_compressor.h"
#include "pictures/jpeg_decoder.h"
#include "pictures/jpeg_file.h"
#include "pictures/picture_rows.h"

#include <QBuffer>

#include <algorithm>
#include <limits>

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

QImage pixelsOf(JpegBlocks& blocks, const JpegGeometry& geometry, jpeg_decompress_struct& source,
                const Turn& turn) {
    JpegCompressor compressor;
    const bool done = compressor.guarded([&](jpeg_compress_struct& codec) {
        copyParameters(source, turn, geometry, codec);
        jpeg_write_coefficients(&codec, blocks.give(codec));
        jpeg_finish_compress(&codec);
    });
    if (!done) return {};
    QByteArray file = compressor.takeFile();
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    std::optional<Picture> picture = decodeJpeg(buffer);
    return picture ? std::move(picture->image) : QImage();
}

std::unique_ptr<JpegBlocks> blocksOf(const QImage& pixels, const JpegGeometry& geometry,
                                     jpeg_decompress_struct& source, const Turn& turn) {
    JpegCompressor compressor;
    const bool done = compressor.guarded([&](jpeg_compress_struct& codec) {
        copyParameters(source, turn, geometry, codec);
        codec.input_components = 4;
        codec.in_color_space = QRgbOrder;
        jpeg_start_compress(&codec, TRUE);
        while (codec.next_scanline < codec.image_height) {
            const auto* row =
                reinterpret_cast<const JSAMPLE*>(pixelRow(pixels, static_cast<int>(codec.next_scanline)));
            // libjpeg only reads the rows; its interface has no const.
            JSAMPROW rows[] = {const_cast<JSAMPROW>(row)};  // NOLINT
            jpeg_write_scanlines(&codec, rows, 1);
        }
        jpeg_finish_compress(&codec);
    });
    if (!done) return nullptr;
    QByteArray file = compressor.takeFile();
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    auto blocks = std::make_unique<JpegBlocks>(geometry, geometry.units.height());
    JpegFile encoded(buffer);
    if (!encoded.readHeader()) return nullptr;
    blocks->receive(encoded.info());
    return encoded.readCoefficients(std::numeric_limits<JDIMENSION>::max()) ? std::move(blocks) : nullptr;
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
