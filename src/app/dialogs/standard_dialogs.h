// SPDX-License-Identifier: GPL-3.0-or-later
// Fills the window's dialog set with the dialogs of this folder. Main thread only.
#pragma once

#include "app/window/dialog_set.h"

namespace zelto {

DialogSet standardDialogs();

}  // namespace zelto
