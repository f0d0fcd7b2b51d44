// SPDX-License-Identifier: GPL-3.0-or-later
// The photo that stands in for the user's own until there is one: watermarks can be made on it, and saved ones are shown
// on it.
#pragma once

#include <QString>

namespace zelto {

// The path of the photo as a file, made in a temporary folder when it is first asked for and gone when the program ends.
// Empty where there is no room for it. Any thread.
QString samplePhotoPath();

}  // namespace zelto
