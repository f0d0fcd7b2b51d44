// SPDX-License-Identifier: GPL-3.0-or-later
// Which picture a logo is and how it is treated. Main thread only; files are read in the background.
#pragma once

#include "app/editors/controls/record_binder.h"
#include "app/editors/text/logo_rules.h"
#include "app/editors/text/logo_sample.h"

#include <QPushButton>
#include <QWidget>

namespace zelto {

// A file that was chosen as a logo.
struct Logo {
    QString path;
    QByteArray bytes;
    QSize size;  // in pixels
};

// Lets the user choose a file, beginning beside `current`, and hands it to `take` once it has been read; a file that is
// no picture is told of instead.
void chooseLogo(QWidget* window, const QString& current, std::function<void(const Logo&)> take);

// Gives a new logo that would be a dot on a photo of `photo` pixels, or cover it, a quarter of the width; others keep
// their size.
void startLogoSize(Watermark& logo, QSizeF photo);

// Which file a logo is, with its picture.
class LogoFileGroup : public QWidget {
    Q_OBJECT

  public:
    // Its controls are bound to the record of `binder`.
    explicit LogoFileGroup(RecordBinder<Watermark>& binder, QWidget* parent = nullptr);

    LogoSample& sample() { return *sample_; }
    // The control to begin with. As a focus proxy it would have Tab pass over those before it.
    QWidget* start() { return choose_; }

  private:
    void SelectImageWatermark();

    RecordBinder<Watermark>& binder_;
    QLineEdit* path_;
    QPushButton* choose_;
    LogoSample* sample_;
};

// How a logo is treated: the colour taken out of it, grey, and its size.
class LogoGroup : public QWidget {
    Q_OBJECT

  public:
    // Its controls are bound to the record of `binder`; a click on `sample` chooses the colour.
    LogoGroup(RecordBinder<Watermark>& binder, LogoSample& sample, QWidget* parent = nullptr);

  private:
    QLayout* makeColors(LogoSample& sample);
    QWidget* makeResize();
    NumberField* makeSize(const NumberKind& kind, const char* name, const QString& label);
    ResizeFields fields() const;
    void showSizes(const Watermark& record);

    RecordBinder<Watermark>& binder_;
    NumberField* percent_ = nullptr;
    NumberField* width_ = nullptr;
    NumberField* height_ = nullptr;
    QString sizedPath_;  // of the logo whose size the fields show
};

}  // namespace zelto
