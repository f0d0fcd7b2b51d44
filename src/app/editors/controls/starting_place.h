// SPDX-License-Identifier: GPL-3.0-or-later
// Where something new is put: where it can be seen. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

#include <QSize>

namespace zelto {

// Puts a new record into a corner, or at another of the nine places, where no watermark of the stack stands yet, with
// a margin of a fortieth of the shorter side of every photo.
void placeWhereSeen(Watermark& record, const EditorCall& call);

}  // namespace zelto
