// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/stored_jpeg.h"

// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
// clang-format on

#include <algorithm>
#include <csetjmp>

namespace zelto {
namespace {

std::jmp_buf escape;

StoredJpeg::Component componentOf(jpeg_decompress_struct& info, int index, jvirt_barray_ptr array) {
    const jpeg_component_info& from = info.comp_info[index];
    StoredJpeg::Component component;
    component.blocks = QSize(int(from.width_in_blocks), int(from.height_in_blocks));
    component.pixels = QSize(8 * info.max_h_samp_factor / from.h_samp_factor,
                             8 * info.max_v_samp_factor / from.v_samp_factor);
    std::copy_n(from.quant_table->quantval, 64, component.table.begin());
    for (JDIMENSION y = 0; y < from.height_in_blocks; ++y) {
        const JBLOCKROW row =
            info.mem->access_virt_barray(reinterpret_cast<j_common_ptr>(&info), array, y, 1, FALSE)[0];
        for (JDIMENSION x = 0; x < from.width_in_blocks; ++x)
            std::copy_n(row[x], 64, component.data.emplace_back().begin());
    }
    return component;
}

void read(jpeg_decompress_struct& info, const QByteArray& file, StoredJpeg& stored) {
    if (setjmp(escape) != 0) {
        stored.components.clear();
        return;
    }
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(file.constData()),
                 static_cast<unsigned long>(file.size()));
    jpeg_read_header(&info, TRUE);
    jvirt_barray_ptr* arrays = jpeg_read_coefficients(&info);
    stored.size = QSize(int(info.image_width), int(info.image_height));
    stored.isProgressive = info.progressive_mode != 0;
    stored.hasAdobeMarker = info.saw_Adobe_marker != 0;
    stored.restartInterval = info.restart_interval;
    for (int i = 0; i < info.num_components; ++i)
        stored.components.push_back(componentOf(info, i, arrays[i]));
}

}  // namespace

QRect StoredJpeg::differenceFrom(const StoredJpeg& other) const {
    const QRect everything(QPoint(0, 0), size);
    if (size != other.size || isProgressive != other.isProgressive ||
        hasAdobeMarker != other.hasAdobeMarker || restartInterval != other.restartInterval ||
        components.size() != other.components.size())
        return everything;
    QRect difference;
    for (std::size_t i = 0; i < components.size(); ++i) {
        const Component& mine = components[i];
        const Component& theirs = other.components[i];
        if (mine.blocks != theirs.blocks || mine.pixels != theirs.pixels || mine.table != theirs.table)
            return everything;
        for (int y = 0; y < mine.blocks.height(); ++y) {
            for (int x = 0; x < mine.blocks.width(); ++x) {
                if (mine.at(x, y) != theirs.at(x, y)) difference |= mine.pixelsOf(x, y);
            }
        }
    }
    return difference;
}

StoredJpeg storedJpeg(const QByteArray& file) {
    StoredJpeg stored;
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    errors.error_exit = [](j_common_ptr) { std::longjmp(escape, 1); };
    errors.output_message = [](j_common_ptr) {};
    read(info, file, stored);
    jpeg_destroy_decompress(&info);
    return stored;
}

}  // namespace zelto
