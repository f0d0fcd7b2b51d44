// SPDX-License-Identifier: GPL-3.0-or-later
// How a JPEG output came about in a run that keeps blocks without marks as they are.
#pragma once

#include <QString>

namespace zelto {

struct JpegWay {
    bool isLossless = false;
    QString reason{};  // why the photo was encoded as a whole; for the user
};

}  // namespace zelto
