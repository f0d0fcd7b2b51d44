// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the window program's options.
#pragma once

#include "options/option_table.h"

namespace zelto {

const ProgramManual& windowManual();

}  // namespace zelto
