// SPDX-License-Identifier: GPL-3.0-or-later
// The resolution a JPEG, TIFF or WebP file states, told from its header without decoding it. Any thread.
#pragma once

#include <QByteArrayView>

namespace zelto {

// Whether every resolution that the file states is `dpi`, to within the rounding of the formats that count in whole
// dots. A file that states none, or none with a unit, does so only for the 72 dpi that readers then assume.
bool recordsResolution(QByteArrayView file, double dpi);

}  // namespace zelto
