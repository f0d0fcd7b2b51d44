// SPDX-License-Identifier: GPL-3.0-or-later
// The small pictures built into the programs.
#pragma once

#include <QImage>
#include <QString>

namespace zelto {

// The built-in picture of a file name such as "Normal.png"; a null picture when there is none. Any thread.
QImage resourcePicture(const QString& fileName);

}  // namespace zelto
