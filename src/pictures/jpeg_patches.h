// SPDX-License-Identifier: GPL-3.0-or-later
// Parts of a JPEG picture between coefficients and pixels. libjpeg does both ways, so that pixels are those of any
// other program that decodes the photo. It has no calls for that step alone: each way it works on a small file of
// several scans, which it keeps all coefficients of, and those are ours (JpegBlocks). So nothing is written in Huffman
// codes only to be read again.
#pragma once

#include "pictures/jpeg_blocks.h"

#include <QImage>
#include <QRect>

#include <memory>
#include <vector>

namespace zelto {

// Has `codec` write a picture of `geometry` with the colours, sampling and quantisation tables of `source`, turned.
// To be called under JpegCompressor::guarded().
void copyParameters(jpeg_decompress_struct& source, const Turn& turn, const JpegGeometry& geometry,
                    jpeg_compress_struct& codec);

// The pixels of `blocks` in the picture's own colours, RGB32; null where libjpeg fails.
QImage pixelsOf(JpegBlocks& blocks, const JpegGeometry& geometry, jpeg_decompress_struct& source,
                const Turn& turn);

// The blocks of `pixels` (RGB32); null where libjpeg fails. Throws std::bad_alloc.
std::unique_ptr<JpegBlocks> blocksOf(const QImage& pixels, const JpegGeometry& geometry,
                                     jpeg_decompress_struct& source, const Turn& turn);

// The parts of a picture in which something is drawn: rows of sampling units, and in them columns.
struct JpegBand {
    int first;  // rows of units, from this
    int end;    // to the one before this
    struct Columns {
        int first;
        int end;
    };
    std::vector<Columns> columns;  // apart from each other, from the left
};

// What covers `areas`, from the top. No band is higher than `mostRows`.
std::vector<JpegBand> bandsOf(const std::vector<QRect>& areas, const JpegGeometry& geometry, int mostRows);

}  // namespace zelto
