// SPDX-License-Identifier: GPL-3.0-or-later
// The nine places of a photo as a grid of buttons, numbered 1 to 9 row by row from the top left. One place is
// reached with Tab, the others from there with the arrow keys. Main thread only.
#pragma once

#include "app/editors/controls/position_rules.h"

#include <QButtonGroup>
#include <QWidget>

namespace zelto {

class PositionGrid : public QWidget {
    Q_OBJECT

  public:
    explicit PositionGrid(QWidget* parent = nullptr);

    // Marks a cell without telling anyone; none for any other number.
    void load(int cell);
    // Which cells can be chosen.
    void enableCells(const PositionControls& controls);

    QAbstractButton& cell(int cell) { return *cells_->button(cell); }

  Q_SIGNALS:
    void chosen(int cell);

  private:
    void keepOneTabStop();

    QButtonGroup* cells_;
};

}  // namespace zelto
