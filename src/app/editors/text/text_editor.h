// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of texts: the words with their macros, how they are written, and where they stand. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor textEditor();

}  // namespace zelto
