// SPDX-License-Identifier: GPL-3.0-or-later
// A stack as a picture: the sample photo with everything on it. Any thread that may lay out text.
#pragma once

#include "records/watermark_stack.h"

#include <QImage>
#include <QSize>

namespace zelto {

// The framed photo, scaled to fit into `bound` device pixels; null where it cannot be made.
QImage stackPicture(const WatermarkStack& stack, QSize bound);

}  // namespace zelto
