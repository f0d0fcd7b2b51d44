// SPDX-License-Identifier: GPL-3.0-or-later
// How different two colours look.
#pragma once

#include <QRgb>

namespace zelto {

// CIEDE2000 (CIE 142-2001) of two sRGB colours; below 1 nobody sees a difference.
double ciede2000(QRgb one, QRgb other);

}  // namespace zelto
