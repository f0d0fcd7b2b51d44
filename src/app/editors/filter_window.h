// SPDX-License-Identifier: GPL-3.0-or-later
// The window to choose a photo filter in: the selected photo in every one of them. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

void chooseFilter(const EditorCall& call);

}  // namespace zelto
