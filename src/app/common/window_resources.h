// SPDX-License-Identifier: GPL-3.0-or-later
// The files built into the window: its icons and the tips. Any thread.
#pragma once

#include <QLatin1String>
#include <QString>

namespace zelto {

// The path Qt opens a built-in file by, such as "icons/zoom-in.svg".
QString windowResource(const QString& name);

}  // namespace zelto
