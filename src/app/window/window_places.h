// SPDX-License-Identifier: GPL-3.0-or-later
// Where a window and its columns come back: as they were left, and on a screen that is smaller than the one they were
// left on, whole and in the same proportions. Main thread only.
#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

class QSplitter;
class QWidget;

namespace zelto {

// Gives a window that is not shown yet the place it had; `size` where there is none to give back. Either way it fits
// on a screen that is there.
void restoreWindow(QWidget& window, const std::optional<QByteArray>& geometry, QSize size);

// Gives columns the widths they had; where those are more than `width` pixels, the middle column keeps at least half.
void restoreColumns(QSplitter& columns, const std::optional<QByteArray>& state, int width);

}  // namespace zelto
