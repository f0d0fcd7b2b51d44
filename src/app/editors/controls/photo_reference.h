// SPDX-License-Identifier: GPL-3.0-or-later
// The area that shares of "the photo" refer to. Main thread only; reads the header of the photo's file.
#pragma once

#include "app/watermarks/editor_page.h"

#include <QSizeF>

namespace zelto {

class WatermarkController;

// In pixels: the photo's, with its border where watermarks may lie on it. Empty without a photo.
QSizeF photoReference(const WatermarkController& watermarks, const SelectedPhoto& photo);

}  // namespace zelto
