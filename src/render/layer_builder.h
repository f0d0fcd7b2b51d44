// SPDX-License-Identifier: GPL-3.0-or-later
// Turning watermark records into placed layers: content first (text with its macros expanded, logo, shape or
// QR code), then its place. Values in, values out: reentrant, any thread.
#pragma once

#include "macros/macro_expander.h"
#include "records/watermark.h"
#include "render/logo_cache.h"
#include "render/watermark_view.h"

#include <QSizeF>

#include <cstddef>
#include <optional>

namespace zelto {

// What the layers of one photo have in common.
struct LayerContext {
    QSizeF reference;  // the area watermarks are placed in, photo pixels
    MacroContext macros;
    LogoCache* logos = nullptr;
};

struct BuiltLayer {
    std::optional<WatermarkView> view;     // nothing where the record yields no layer
    std::optional<qint64> lastAutoNumber;  // see MacroExpansion
};

// The layer of `record`, which stands at `index` of its stack. There is none for an unknown type, for shapes
// and QR codes that ask for tiling and for QR codes that ask for a rotation. A disabled record's layer is
// hidden.
BuiltLayer GetWatermarkViewfromWatermark(const Watermark& record, std::size_t index,
                                         const LayerContext& context);

}  // namespace zelto
