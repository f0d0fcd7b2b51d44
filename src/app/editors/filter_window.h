// SPDX-License-Identifier: GPL-3.0-or-later
// The editor for the photo filter: the selected photo in every one of them, to choose from. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor filterEditor();

}  // namespace zelto
