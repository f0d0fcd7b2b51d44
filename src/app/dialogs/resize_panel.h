// SPDX-License-Identifier: GPL-3.0-or-later
// The resizing of the output options: whether, in which of three ways, and to what. Main thread only.
#pragma once

#include "persistence/output_settings_file.h"

#include <QGroupBox>

#include <array>

class QButtonGroup;
class QCheckBox;
class QRadioButton;

namespace zelto {

class ResizeField;

class ResizePanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit ResizePanel(QWidget* parent = nullptr);

    // Only what belongs to resizing is loaded and stored.
    void load(const OutputSettings& settings);
    void store(OutputSettings& settings) const;

    ResizeField& longerSide() { return *longerSide_; }

  Q_SIGNALS:
    void changed();

  private:
    QRadioButton* addWay(int way, const QString& text);
    void layOut();
    void connectFields();
    // Only the fields of the chosen way take input.
    void EnableDisableResizeOptionsControls();
    // In proportion, both percentages are the same.
    void followPercentage(ResizeField& other, int value);

    QButtonGroup* ways_;
    ResizeField* percentageWidth_;
    ResizeField* percentageHeight_;
    ResizeField* absoluteWidth_;
    ResizeField* absoluteHeight_;
    ResizeField* longerSide_;
    QCheckBox* aspectRatio_;
    QCheckBox* dontEnlarge_;
};

}  // namespace zelto
