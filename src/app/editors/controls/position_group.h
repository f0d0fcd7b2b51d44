// SPDX-License-Identifier: GPL-3.0-or-later
// Everything about where a watermark stands: a cell of the grid or a place of its own, the paddings, and the tiling with
// its spacing, which is a widget of its own. Main thread only.
#pragma once

#include "app/editors/controls/position_grid.h"
#include "app/editors/controls/record_binder.h"

#include <QGridLayout>
#include <QWidget>

namespace zelto {

class PositionGroup : public QWidget {
    Q_OBJECT

  public:
    // Its controls are bound to the record of `binder`.
    explicit PositionGroup(RecordBinder<Watermark>& binder, QWidget* parent = nullptr);

    PositionGrid& grid() { return *grid_; }
    // The tiling with its spacing, for those kinds that can be repeated; whoever calls it puts it into a layout.
    QWidget* makeTiling();

  private:
    QWidget* makePosition();
    QWidget* makePadding();
    NumberField* makeNumber(const char* name, const NumberKind& kind);

    RecordBinder<Watermark>& binder_;
    PositionGrid* grid_ = nullptr;
    int lastCell_ = 1;  // where turning back from a custom place leads
};

}  // namespace zelto
