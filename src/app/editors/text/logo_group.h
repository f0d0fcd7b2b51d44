// SPDX-License-Identifier: GPL-3.0-or-later
// Which picture a logo is and how it is treated: its file, the colour taken out of it, grey, and its size. It
// asks for edits and shows what it is loaded with: its owner loads it after each change of the record. Main
// thread only.
#pragma once

#include "app/editors/controls/color_well.h"
#include "app/editors/controls/number_field.h"
#include "app/editors/controls/watermark_edit.h"
#include "app/editors/text/logo_rules.h"
#include "app/editors/text/logo_sample.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

namespace zelto {

// What a new logo starts with.
void startLogo(Watermark& record);

class LogoGroup : public QWidget {
    Q_OBJECT

  public:
    explicit LogoGroup(QWidget* parent = nullptr);

    void load(const Watermark& record);

    // Lets the user choose a file. False where none was chosen.
    bool SelectImageWatermark();

  Q_SIGNALS:
    void edited(const zelto::WatermarkEdit& edit);

  private:
    QWidget* makePath();
    QWidget* makeColors();
    QWidget* makeResize();
    NumberField* makeAbsolute(const QString& name, const QString& label, void (*change)(Watermark&, float));
    ResizeFields fields() const;
    QString startFolder() const;

    QLineEdit* path_ = nullptr;
    LogoSample* sample_;
    QCheckBox* transparent_ = nullptr;
    ColorWell* transparentColor_ = nullptr;
    QCheckBox* grayscale_ = nullptr;
    QGroupBox* resize_ = nullptr;
    QButtonGroup* resizeType_ = nullptr;
    NumberField* propSize_ = nullptr;
    QComboBox* propSide_ = nullptr;
    NumberField* absWidth_ = nullptr;
    NumberField* absHeight_ = nullptr;
    QCheckBox* keepAspect_ = nullptr;
};

}  // namespace zelto
