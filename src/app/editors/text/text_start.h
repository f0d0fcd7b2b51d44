// SPDX-License-Identifier: GPL-3.0-or-later
// What a new text starts with: the font, colour and size of the text that was edited last. Main thread only.
#pragma once

#include "records/watermark.h"

namespace zelto {

// Gives a new text its start. The very first one has a twentieth of the photo's width, in white, in the program's own
// font.
void startText(Watermark& record);

// Has the next new text look like `text`.
void rememberTextStyle(const Watermark& text);

}  // namespace zelto
