// SPDX-License-Identifier: GPL-3.0-or-later
// The editor for the border and the shadow of the photos. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor effectsEditor();

}  // namespace zelto
