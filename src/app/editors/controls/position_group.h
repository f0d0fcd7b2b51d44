// SPDX-License-Identifier: GPL-3.0-or-later
// Everything about where a watermark stands: a cell of the grid or a place of its own, the paddings, and for
// those that can be repeated the tiling with its spacing. It asks for edits and shows what it is loaded with:
// its owner loads it after each change of the record. Main thread only.
#pragma once

#include "app/editors/controls/number_field.h"
#include "app/editors/controls/position_grid.h"
#include "app/editors/controls/watermark_edit.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QWidget>

#include <cstdint>
#include <vector>

namespace zelto {

class PositionGroup : public QWidget {
    Q_OBJECT

  public:
    enum class Tiling { Offered, None };

    explicit PositionGroup(Tiling tiling, QWidget* parent = nullptr);

    void load(const Watermark& record);

    PositionGrid& grid() { return *grid_; }

  Q_SIGNALS:
    void edited(const zelto::WatermarkEdit& edit);

  private:
    struct BoundField {
        NumberField* field;
        std::int64_t Watermark::*value;
    };

    NumberField* addNumber(const char* name, const QString& label, const NumberKind& kind,
                           std::int64_t Watermark::*value);
    QWidget* makePosition();
    QWidget* makePadding();
    QWidget* makeTiling();

    PositionGrid* grid_;
    QRadioButton* preset_;
    QRadioButton* custom_;
    NumberField* left_;
    NumberField* top_;
    NumberField* paddingTop_;
    NumberField* paddingLeft_;
    NumberField* paddingBottom_;
    NumberField* paddingRight_;
    QCheckBox* horizontalTiling_ = nullptr;
    QCheckBox* verticalTiling_ = nullptr;
    NumberField* horizontalSpacing_ = nullptr;
    NumberField* verticalSpacing_ = nullptr;
    std::vector<BoundField> fields_;
    int lastCell_ = 1;  // where turning back from a custom place leads
};

}  // namespace zelto
