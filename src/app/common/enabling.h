// SPDX-License-Identifier: GPL-3.0-or-later
// Controls that say why they cannot be used. Main thread only.
#pragma once

#include <QString>

class QWidget;

namespace zelto {

// Enables or disables `widget`; as long as it is disabled, its tooltip is `whyNot` in place of its own.
void enableOr(QWidget& widget, bool isOn, const QString& whyNot);

}  // namespace zelto
