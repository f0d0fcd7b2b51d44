// SPDX-License-Identifier: GPL-3.0-or-later
// Turning watermark records into placed layers: content first (text with its macros expanded, logo, shape or
// QR code), then its place.
#pragma once

#include "macros/macro_expander.h"
#include "records/watermark.h"
#include "render/layer_warning.h"
#include "render/logo_cache.h"
#include "render/watermark_view.h"

#include <QSizeF>

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
    std::optional<LayerWarning> warning;   // where the record draws nothing, or nothing that can be seen
};

// The layer of `record`. There is none for an unknown type, for shapes and QR codes that ask for tiling and for QR
// codes that ask for a rotation.
BuiltLayer GetWatermarkViewfromWatermark(const Watermark& record, const LayerContext& context);

}  // namespace zelto
