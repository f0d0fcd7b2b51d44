// SPDX-License-Identifier: GPL-3.0-or-later
// A line icon that stands by itself, and stays readable when the desktop turns dark or light. Main thread only.
#pragma once

#include <QIcon>
#include <QLabel>

namespace zelto {

class IconLabel : public QLabel {
  public:
    // `side` in device-independent pixels.
    IconLabel(QLatin1String icon, int side, QWidget* parent, QIcon::Mode mode = QIcon::Normal);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void draw();

    QIcon icon_;
    int side_;
    QIcon::Mode mode_;
};

}  // namespace zelto
