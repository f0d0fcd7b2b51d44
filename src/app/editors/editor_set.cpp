// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/editor_set.h"

namespace zelto {

EditorSet standardEditors() {
    return {};
}

}  // namespace zelto
