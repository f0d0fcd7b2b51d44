// SPDX-License-Identifier: GPL-3.0-or-later
// The pixel size of an output picture. Pure; any thread.
#pragma once

#include "records/output_options.h"
#include "records/photo_effects.h"

#include <QSize>

#include <optional>

namespace zelto {

// The size at which a photo of `photo` upright pixels is written; fractions of a pixel are cut off. A side is 0 or less
// where the options ask for that, and the largest number QSize holds where they ask for more.
QSize outputSize(QSize photo, const OutputOptions& options);

// The size of the written picture: outputSize(), or, for a photo that is not resized, its own size with the border and
// the shadow around it.
QSize writtenSize(QSize photo, const OutputOptions& options, const std::optional<PhotoEffects>& effects);

}  // namespace zelto
