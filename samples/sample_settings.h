// SPDX-License-Identifier: GPL-3.0-or-later
// The settings that show what Zelto can do on the sample photos.
#pragma once

#include "records/watermark_stack.h"

namespace zelto::samples {

// A logo, a title with macros, a tiled and turned text, and a QR code. `logo` holds the bytes of the logo's
// file.
WatermarkStack everydayStack(const QByteArray& logo);

// Border, shadow, a photo filter, shapes and an embossed text.
WatermarkStack framedStack();

}  // namespace zelto::samples
