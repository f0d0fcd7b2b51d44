// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/window_resources.h"

#include <QtGlobal>

// Resources of a static library register themselves only when they are asked to, outside any namespace.
static void registerWindowResources() {
    Q_INIT_RESOURCE(window);
}

namespace zelto {

QString windowResource(const QString& name) {
    static const bool registered = (registerWindowResources(), true);
    Q_UNUSED(registered)
    return QStringLiteral(":/window/") + name;
}

}  // namespace zelto
