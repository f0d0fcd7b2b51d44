// SPDX-License-Identifier: GPL-3.0-or-later
// Fills the watermark list's editor set with the editors of this folder. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

EditorSet standardEditors();

}  // namespace zelto
