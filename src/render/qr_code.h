// SPDX-License-Identifier: GPL-3.0-or-later
// QR code watermarks: black modules on an optional background with a quiet border. Reentrant, any thread.
#pragma once

#include <QImage>
#include <QString>
#include <optional>

#include "records/color.h"

namespace zelto {

// The square picture of `text`, `side` pixels wide or as wide as the symbol has modules where that is more. A null
// picture for an empty text or one too long for a QR code. Without a background the space between modules is
// transparent.
QImage qrImageForString(const QString& text, double side, const std::optional<Color>& background);

}  // namespace zelto
