// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_blocks.h"

#include <algorithm>
#include <cstring>

namespace zelto {
namespace {

int covering(int length, int step) {
    return (length + step - 1) / step;
}

std::size_t blocksWide(const JpegGeometry& geometry, const JpegGeometry::Component& component) {
    return static_cast<std::size_t>(geometry.units.width()) * static_cast<std::size_t>(component.across);
}

// The coefficients of a mirrored block: those of odd frequency along a reversed axis change their sign.
void turnBlock(const JBLOCK& stored, const Turn& turn, JBLOCK& upright) {
    for (std::size_t v = 0; v < DCTSIZE; ++v) {
        for (std::size_t u = 0; u < DCTSIZE; ++u) {
            const bool negative = (turn.reversesX && u % 2 == 1) != (turn.reversesY && v % 2 == 1);
            const JCOEF value = stored[v * DCTSIZE + u];
            upright[turn.swapsAxes ? u * DCTSIZE + v : v * DCTSIZE + u] =
                negative ? static_cast<JCOEF>(-value) : value;
        }
    }
}

}  // namespace

JpegGeometry JpegGeometry::of(const jpeg_decompress_struct& file) {
    JpegGeometry geometry;
    geometry.size = QSize(static_cast<int>(file.image_width), static_cast<int>(file.image_height));
    geometry.unit = QSize(file.max_h_samp_factor, file.max_v_samp_factor) * DCTSIZE;
    for (int i = 0; i < file.num_components; ++i) {
        const jpeg_component_info& info = file.comp_info[i];
        geometry.components.push_back({.across = info.h_samp_factor,
                                       .down = info.v_samp_factor,
                                       .blocks = {},
                                       .pixels = QSize(geometry.unit.width() / info.h_samp_factor,
                                                       geometry.unit.height() / info.v_samp_factor)});
    }
    return geometry.part(geometry.size);
}

JpegGeometry JpegGeometry::part(QSize pixels) const {
    JpegGeometry geometry = *this;
    geometry.size = pixels;
    geometry.units = {covering(pixels.width(), unit.width()), covering(pixels.height(), unit.height())};
    for (Component& component : geometry.components) {
        component.blocks = {covering(pixels.width(), component.pixels.width()),
                            covering(pixels.height(), component.pixels.height())};
    }
    return geometry;
}

JpegGeometry JpegGeometry::turned(const Turn& turn) const {
    if (!turn.swapsAxes) return *this;
    JpegGeometry geometry = *this;
    geometry.unit.transpose();
    for (Component& component : geometry.components) {
        std::swap(component.across, component.down);
        component.pixels.transpose();
    }
    return geometry.part(size.transposed());
}

qint64 JpegBlocks::bytesFor(const JpegGeometry& geometry, int unitRows) {
    qint64 blocks = 0;
    for (const JpegGeometry::Component& component : geometry.components)
        blocks += static_cast<qint64>(blocksWide(geometry, component)) * component.down * unitRows;
    return blocks * qint64{sizeof(JBLOCK)};
}

JpegBlocks::JpegBlocks(const JpegGeometry& geometry) : geometry_(geometry) {
    for (const JpegGeometry::Component& component : geometry.components)
        rows_.push_back({this, component.down, blocksWide(geometry, component), {}, 0});
    for (Rows& rows : rows_) arrays_.push_back(reinterpret_cast<jvirt_barray_ptr>(&rows));
}

JpegBlocks::JpegBlocks(const JpegGeometry& geometry, int unitRows) : JpegBlocks(geometry) {
    unitRows = std::min(unitRows, geometry.units.height());
    memory_ = largeMemory(static_cast<std::size_t>(bytesFor(geometry, unitRows)));
    auto* next = reinterpret_cast<JBLOCKROW>(memory_.get());
    for (Rows& rows : rows_) {
        for (int y = 0; y < unitRows * rows.down; ++y, next += rows.width) rows.pointers.push_back(next);
    }
}

JBLOCKROW JpegBlocks::row(std::size_t component, int y) const {
    const std::vector<JBLOCKROW>& pointers = rows_[component].pointers;
    return pointers[static_cast<std::size_t>(y) % pointers.size()];
}

// libjpeg asks for the components in their order.
jvirt_barray_ptr JpegBlocks::request(j_common_ptr codec, int, boolean, JDIMENSION width, JDIMENSION,
                                     JDIMENSION) {
    auto* const blocks = static_cast<JpegBlocks*>(codec->client_data);
    if (blocks->requested_ == blocks->rows_.size() || blocks->rows_[blocks->requested_].width < width)
        ERREXIT(codec, JERR_BAD_VIRTUAL_ACCESS);
    return blocks->arrays_[blocks->requested_++];
}

JBLOCKARRAY JpegBlocks::accessToRead(j_common_ptr, jvirt_barray_ptr array, JDIMENSION first, JDIMENSION count,
                                     boolean) {
    auto& rows = *reinterpret_cast<Rows*>(array);
    rows.owner->clear(rows, static_cast<int>(first + count));
    return rows.pointers.data() + first % rows.pointers.size();
}

JBLOCKARRAY JpegBlocks::accessToWrite(j_common_ptr codec, jvirt_barray_ptr array, JDIMENSION first,
                                      JDIMENSION, boolean) {
    auto& rows = *reinterpret_cast<Rows*>(array);
    const auto& prepare = rows.owner->prepare;
    if (prepare && !prepare(static_cast<int>(first) / rows.down)) ERREXIT(codec, JERR_INPUT_EOF);
    return rows.pointers.data() + first % rows.pointers.size();
}

void JpegBlocks::clear(Rows& rows, int end) const {
    for (; rows.cleared < end; ++rows.cleared) {
        JBLOCKROW row = rows.pointers[static_cast<std::size_t>(rows.cleared) % rows.pointers.size()];
        std::memset(row, 0, rows.width * sizeof(JBLOCK));
    }
}

JBLOCKARRAY JpegBlocks::accessToShow(j_common_ptr, jvirt_barray_ptr array, JDIMENSION first, JDIMENSION,
                                     boolean writable) {
    auto& rows = *reinterpret_cast<Rows*>(array);
    return writable ? rows.owner->unwantedRows_.data() : rows.pointers.data() + first % rows.pointers.size();
}

void JpegBlocks::keepArraysOf(j_common_ptr codec, Access access) {
    codec->client_data = this;
    codec->mem->request_virt_barray = request;
    codec->mem->access_virt_barray = access;
    requested_ = 0;
}

void JpegBlocks::show(jpeg_decompress_struct& file) {
    const auto widest = std::ranges::max_element(rows_, {}, &Rows::width);
    unwanted_.resize(widest->width * DCTSIZE2);
    unwantedRows_.fill(reinterpret_cast<JBLOCKROW>(unwanted_.data()));
    keepArraysOf(reinterpret_cast<j_common_ptr>(&file), accessToShow);
}

void JpegBlocks::finishReading() {
    for (Rows& rows : rows_) clear(rows, geometry_.units.height() * rows.down);
}

jvirt_barray_ptr* JpegBlocks::give(jpeg_compress_struct& file) {
    file.mem->access_virt_barray = accessToWrite;
    return arrays_.data();
}

void JpegBlocks::fillTurned(const JpegBlocks& stored, const Turn& turn, int unitRow) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        Rows& rows = rows_[i];
        const QSize from = stored.geometry_.components[i].blocks;
        const QSize to = geometry_.components[i].blocks;
        for (int y = unitRow * rows.down; y < (unitRow + 1) * rows.down; ++y) {
            JBLOCKROW target = row(i, y);
            std::memset(target, 0, rows.width * sizeof(JBLOCK));
            if (y >= to.height()) continue;
            for (int x = 0; x < to.width(); ++x) {
                int storedX = turn.swapsAxes ? y : x;
                int storedY = turn.swapsAxes ? x : y;
                if (turn.reversesX) storedX = from.width() - 1 - storedX;
                if (turn.reversesY) storedY = from.height() - 1 - storedY;
                turnBlock(stored.row(i, storedY)[storedX], turn, target[x]);
            }
        }
    }
}

}  // namespace zelto
