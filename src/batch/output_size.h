// SPDX-License-Identifier: GPL-3.0-or-later
// The pixel size of an output picture. Pure; any thread.
#pragma once

#include "records/output_options.h"

#include <QSize>

namespace zelto {

// The size to write a photo of `photo` upright pixels at, every value cut to whole pixels. Either side may
// come out as 0 or less where the options ask for that; sides beyond what QSize holds come out as its largest
// number.
QSize outputSize(QSize photo, const OutputOptions& options);

}  // namespace zelto
