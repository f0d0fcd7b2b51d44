// SPDX-License-Identifier: GPL-3.0-or-later
// The pixel size of an output picture. Pure; any thread.
#pragma once

#include "records/output_options.h"
#include "records/photo_effects.h"

#include <QSize>

#include <optional>

namespace zelto {

// The size to write a photo of `photo` upright pixels at, every value cut to whole pixels. Either side may
// come out as 0 or less where the options ask for that; sides beyond what QSize holds come out as its largest
// number.
QSize outputSize(QSize photo, const OutputOptions& options);

// The size of the written picture: outputSize, but a photo that is not resized grows by its border and shadow.
QSize writtenSize(QSize photo, const OutputOptions& options, const std::optional<PhotoEffects>& effects);

}  // namespace zelto
