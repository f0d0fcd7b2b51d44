// SPDX-License-Identifier: GPL-3.0-or-later
// The check box and the focus of list rows. They are drawn here because those of common styles all but vanish in dark
// themes and on selected rows. Main thread only.
#pragma once

#include <QPalette>
#include <QRect>

class QPainter;

namespace zelto {

inline constexpr int CheckBoxSide = 16;  // device-independent pixels

void paintCheckBox(QPainter& painter, const QRect& box, bool isChecked, bool isRowSelected,
                   const QPalette& palette);

// The frame of the row, or of the area, that has the keyboard.
void paintFocus(QPainter& painter, const QRect& area, bool isSelected, const QPalette& palette);

}  // namespace zelto
