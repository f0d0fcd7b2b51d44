// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of logos: the picture, how it is treated, and where it stands. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

void editLogo(const EditorCall& call);

}  // namespace zelto
