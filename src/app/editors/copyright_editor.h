// SPDX-License-Identifier: GPL-3.0-or-later
// The form for the copyright and creator texts written into photos. They are kept in their file for
// the next time. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

namespace zelto {

Editor copyrightEditor();

}  // namespace zelto
