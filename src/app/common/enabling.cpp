// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/enabling.h"

#include <QVariant>
#include <QWidget>

namespace zelto {

void enableOr(QWidget& widget, bool isOn, const QString& whyNot) {
    constexpr const char* Own = "toolTipWhileEnabled";
    if (!widget.property(Own).isValid()) widget.setProperty(Own, widget.toolTip());
    widget.setEnabled(isOn);
    widget.setToolTip(isOn ? widget.property(Own).toString() : whyNot);
}

}  // namespace zelto
