// SPDX-License-Identifier: GPL-3.0-or-later
// The editor for QR codes: what they say, how large they are, on which background and where they stand. It
// warns while a code could not be read. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor qrCodeEditor();

}  // namespace zelto
