// SPDX-License-Identifier: GPL-3.0-or-later
// The check box of list rows. It is drawn here because the boxes of common styles all but vanish in dark
// themes and on selected rows. Main thread only.
#pragma once

#include <QPalette>
#include <QRect>

class QPainter;

namespace zelto {

inline constexpr int CheckBoxSide = 16;  // device-independent pixels

void paintCheckBox(QPainter& painter, const QRect& box, bool isChecked, bool isRowSelected,
                   const QPalette& palette);

}  // namespace zelto
