// SPDX-License-Identifier: GPL-3.0-or-later
// The area that shares of "the photo" refer to. Main thread only; reads the header of the photo's file.
#pragma once

#include "app/watermarks/editor_set.h"

#include <QSizeF>

namespace zelto {

// In pixels: the selected photo's, with its border where watermarks may lie on it. Empty without a photo.
QSizeF photoReference(const EditorCall& call);

}  // namespace zelto
