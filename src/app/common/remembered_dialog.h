// SPDX-License-Identifier: GPL-3.0-or-later
// Dialogs that open as large as they were left. Main thread only.
#pragma once

#include "platform/preferences.h"

#include <QDialog>
#include <QSize>

namespace zelto {

// Gives `dialog` its stored size, if there is one, and stores the size it has whenever it is closed.
void rememberSize(QDialog& dialog, const Preference<QSize>& size);

}  // namespace zelto
