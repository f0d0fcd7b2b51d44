// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/resource_picture.h"

#include <QtGlobal>

// Resources of a static library register themselves only when they are asked to, outside any namespace.
static void registerResources() {
    Q_INIT_RESOURCE(zelto);
}

namespace zelto {

QImage resourcePicture(const QString& fileName) {
    static const bool registered = (registerResources(), true);
    Q_UNUSED(registered)
    return QImage(QStringLiteral(":/icons/") + fileName);
}

}  // namespace zelto
