// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of logos: which picture, how it is treated and sized, and where it stands. A new one begins with the
// choice of its file. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor logoEditor();

}  // namespace zelto
