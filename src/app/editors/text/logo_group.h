// SPDX-License-Identifier: GPL-3.0-or-later
// Which picture a logo is and how it is treated: its file, the colour taken out of it, grey, and its size. Main thread
// only; files are read in the background.
#pragma once

#include "app/editors/controls/record_binder.h"
#include "app/editors/text/logo_rules.h"
#include "app/editors/text/logo_sample.h"

#include <QWidget>

namespace zelto {

// What a new logo starts with.
void startLogo(Watermark& record);

class LogoGroup : public QWidget {
    Q_OBJECT

  public:
    // Its controls are bound to the record of `binder`.
    explicit LogoGroup(RecordBinder<Watermark>& binder, QWidget* parent = nullptr);

    // Lets the user choose a file, which becomes the record's once it has been read.
    void SelectImageWatermark();

  private:
    QWidget* makePath();
    QWidget* makeColors();
    QWidget* makeResize();
    NumberField* makeSize(const NumberKind& kind, const char* name, const QString& label);
    ResizeFields fields() const;
    void showSizes(const Watermark& record);
    QString startFolder() const;
    void take(const QString& path);

    RecordBinder<Watermark>& binder_;
    QLineEdit* path_ = nullptr;
    LogoSample* sample_;
    NumberField* percent_ = nullptr;
    NumberField* width_ = nullptr;
    NumberField* height_ = nullptr;
    QString sizedPath_;  // of the logo whose size the fields show
    QString asked_;      // the file chosen last: one chosen before it comes too late
};

}  // namespace zelto
