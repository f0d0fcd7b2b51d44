// SPDX-License-Identifier: GPL-3.0-or-later
// The quantised coefficients of a JPEG picture, in memory of our own that libjpeg reads into and writes from. libjpeg's
// own would hold the whole picture in every case; this one can hold a few rows at a time and knows when they are asked
// for.
//
// A *sampling unit* is what all components have in common: 8 x 8 pixels, 16 x 16 where chroma is halved on both axes. Of
// each component it holds `across` times `down` blocks of 8 x 8 coefficients.
#pragma once

#include "pictures/libjpeg.h"
#include "pictures/picture_memory.h"
#include "pictures/upright.h"

#include <QRect>
#include <QSize>

#include <array>
#include <functional>
#include <vector>

namespace zelto {

struct JpegGeometry {
    struct Component {
        int across;  // blocks of a sampling unit
        int down;
        QSize blocks;  // of the picture, without those that only fill up its last sampling units
        QSize pixels;  // that one block covers
    };

    QSize size;   // pixels
    QSize unit;   // pixels of a sampling unit
    QSize units;  // sampling units that cover the picture
    std::vector<Component> components;

    // Of the file as it is stored; its header has been read.
    static JpegGeometry of(const jpeg_decompress_struct& file);
    JpegGeometry turned(const Turn& turn) const;
    // Of a part of the picture that begins at a whole sampling unit.
    JpegGeometry part(QSize pixels) const;
};

class JpegBlocks {
  public:
    // Room for `unitRows` rows of sampling units at a time: row r takes the place of row r - unitRows. Throws
    // std::bad_alloc.
    JpegBlocks(const JpegGeometry& geometry, int unitRows);
    // The blocks of other storages: filled by addRow().
    explicit JpegBlocks(const JpegGeometry& geometry);
    Q_DISABLE_COPY_MOVE(JpegBlocks)

    static qint64 bytesFor(const JpegGeometry& geometry, int unitRows);

    // One row of a component's blocks; `y` counts the rows of blocks, not of units.
    JBLOCKROW row(std::size_t component, int y) const;
    void addRow(std::size_t component, JBLOCKROW row) { rows_[component].pointers.push_back(row); }

    // Has `codec`, a file that is read or one of several scans that is written, keep its coefficients here. What no
    // scan that is read speaks of is 0 after finishReading().
    template <class Codec>
    void receive(Codec& codec) {
        keepArraysOf(reinterpret_cast<j_common_ptr>(&codec), accessToRead);
    }
    void finishReading();

    // Has `file`, whose whole image libjpeg keeps, show these blocks instead of those that it reads.
    void show(jpeg_decompress_struct& file);

    // Has `file` take its coefficients from here: hand the result to jpeg_write_coefficients(). `prepare`, where it is
    // set, is called with each row of sampling units before that is read, and says whether it is there.
    jvirt_barray_ptr* give(jpeg_compress_struct& file);
    std::function<bool(int unitRow)> prepare;

    // Fills the row `unitRow` of this upright picture from `stored`, which holds all of the picture as it is stored.
    void fillTurned(const JpegBlocks& stored, const Turn& turn, int unitRow);

  private:
    // One component. libjpeg knows it by a pointer of its own type.
    struct Rows {
        JpegBlocks* owner;
        int down;
        std::size_t width;  // blocks, filled up to whole sampling units
        std::vector<JBLOCKROW> pointers;
        int cleared;  // rows of blocks that have been filled with zeros for reading
    };

    using Access = JBLOCKARRAY (*)(j_common_ptr codec, jvirt_barray_ptr array, JDIMENSION first,
                                   JDIMENSION count, boolean writable);

    static jvirt_barray_ptr request(j_common_ptr codec, int pool, boolean zero, JDIMENSION width,
                                    JDIMENSION rows, JDIMENSION atATime);
    static JBLOCKARRAY accessToRead(j_common_ptr codec, jvirt_barray_ptr array, JDIMENSION first,
                                    JDIMENSION count, boolean writable);
    static JBLOCKARRAY accessToWrite(j_common_ptr codec, jvirt_barray_ptr array, JDIMENSION first,
                                     JDIMENSION count, boolean writable);
    static JBLOCKARRAY accessToShow(j_common_ptr codec, jvirt_barray_ptr array, JDIMENSION first,
                                    JDIMENSION count, boolean writable);
    void keepArraysOf(j_common_ptr codec, Access access);
    void clear(Rows& rows, int end) const;

    JpegGeometry geometry_;
    LargeMemory memory_;
    std::vector<Rows> rows_;  // by component; never grows, so that pointers to its elements stay
    std::vector<jvirt_barray_ptr> arrays_;
    std::size_t requested_ = 0;  // components that libjpeg has asked room for
    // Where libjpeg may put what is not wanted: one row of blocks, in the place of as many as it asks for at a time.
    std::vector<JCOEF> unwanted_;
    std::array<JBLOCKROW, MAX_SAMP_FACTOR> unwantedRows_{};
};

}  // namespace zelto
