// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/preferences.h"

#include <QSettings>

namespace zelto {
namespace {

// Settings objects of one file share their values, so making one anew for each call costs little.
struct Store : QSettings {
    Store() : QSettings(IniFormat, UserScope, QStringLiteral("Zelto"), QStringLiteral("Zelto")) {}
};

}  // namespace

QVariant detail::preferenceValue(QLatin1String key) {
    return Store().value(key);
}

void detail::setPreferenceValue(QLatin1String key, const QVariant& value) {
    Store store;
    if (value.isValid()) {
        store.setValue(key, value);
    } else {
        store.remove(key);
    }
}

void flushPreferences() {
    Store().sync();
}

}  // namespace zelto
