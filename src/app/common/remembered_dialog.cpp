// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/remembered_dialog.h"

namespace zelto {

void rememberSize(QDialog& dialog, const Preference<QSize>& size) {
    if (const auto stored = storedPreference(size)) dialog.resize(*stored);
    QObject::connect(&dialog, &QDialog::finished, &dialog,
                     [&dialog, size] { setPreference(size, dialog.size()); });
}

}  // namespace zelto
