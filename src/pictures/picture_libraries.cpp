// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_libraries.h"

namespace zelto {

QStringList pictureLibraries() {
    QStringList names;
    for (const char* name : {heifLibrary(), webpLibrary(), jxlLibrary(), rawLibrary()}) {
        if (name != nullptr) names.append(QLatin1String(name));
    }
    return names;
}

}  // namespace zelto
