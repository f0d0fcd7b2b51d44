// SPDX-License-Identifier: GPL-3.0-or-later
// How a text is written: font, size, styles, alignment, colours, shadow and effect. It asks for edits and
// shows what it is loaded with: its owner loads it after each change of the record. Main thread only.
#pragma once

#include "app/editors/controls/color_well.h"
#include "app/editors/controls/number_field.h"
#include "app/editors/controls/watermark_edit.h"
#include "app/editors/text/font_family_list.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QWidget>

namespace zelto {

// What a new text starts with: a twentieth of the photo's width in the program's own font.
void startText(Watermark& record);

class TextStyleGroup : public QWidget {
    Q_OBJECT

  public:
    explicit TextStyleGroup(QWidget* parent = nullptr);

    void load(const Watermark& record);

  Q_SIGNALS:
    void edited(const zelto::WatermarkEdit& edit);

  private:
    QWidget* makeSize();
    QWidget* makeStyles();
    QWidget* makeShadow();
    QWidget* makeEffect();
    void SetFontSizeType(bool isRelative);
    void loadSize(const Watermark& record);

    FontFamilyList* family_;
    QComboBox* sizeType_ = nullptr;
    NumberField* relativeSize_ = nullptr;
    QComboBox* relativeTo_ = nullptr;
    NumberField* fixedSize_ = nullptr;
    QComboBox* usualSizes_ = nullptr;
    QButtonGroup* styles_ = nullptr;
    QButtonGroup* alignment_ = nullptr;
    ColorWell* color_ = nullptr;
    QCheckBox* shadow_ = nullptr;
    ColorWell* shadowColor_ = nullptr;
    QComboBox* effect_ = nullptr;
    QCheckBox* transparentText_ = nullptr;
};

}  // namespace zelto
