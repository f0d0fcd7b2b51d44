// SPDX-License-Identifier: GPL-3.0-or-later
// The editor for shapes: what they are, how large, how filled and turned, and where they stand. Main thread
// only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor shapeEditor();

}  // namespace zelto
