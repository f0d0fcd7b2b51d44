// SPDX-License-Identifier: GPL-3.0-or-later
// Which photos are so large that working on one may take seconds. They are worked on apart from the others, which never
// wait for them. Any thread.
#pragma once

#include "pictures/picture_needs.h"

#include <QSize>

namespace zelto {

inline bool isHugePhoto(QSize photo) {
    constexpr qint64 Pixels = 60'000'000;
    return photo.isValid() && pixelCount(photo) > Pixels;
}

}  // namespace zelto
