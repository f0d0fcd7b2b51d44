// SPDX-License-Identifier: GPL-3.0-or-later
// Telling whether two paths lead to the same file.
#pragma once

#include <QString>

namespace zelto {

// One name for one file, however it is reached: through symbolic links, "..", or another spelling of its folder. A
// file that is not there yet is known by its folder; the path itself comes back where there is no such folder. Looks
// at the disk; any thread.
QString fileIdentity(const QString& path);

}  // namespace zelto
