// SPDX-License-Identifier: GPL-3.0-or-later
// Reading QR codes back from pictures with zbar, a reader that shares nothing with what drew them.
#pragma once

#include <QImage>
#include <QStringList>

namespace zelto {

// The texts of all QR codes found in `picture`, which stands on white where it is transparent.
QStringList readQrCodes(const QImage& picture);

}  // namespace zelto
