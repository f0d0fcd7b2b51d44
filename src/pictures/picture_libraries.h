// SPDX-License-Identifier: GPL-3.0-or-later
// The libraries of picture formats that a build may do without.
#pragma once

#include <QStringList>

namespace zelto {

// Name and version of a library; null where this build is without it.
const char* heifLibrary();
const char* webpLibrary();
const char* jxlLibrary();
const char* rawLibrary();

// Those that are in.
QStringList pictureLibraries();

}  // namespace zelto
