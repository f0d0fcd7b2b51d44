// SPDX-License-Identifier: GPL-3.0-or-later
// Shows one tip after the other. Main thread only.
#pragma once

#include <QDialog>

class QLabel;

namespace zelto {

class MyGlobalInstance;

class TipsDialog : public QDialog {
    Q_OBJECT

  public:
    // `shared` holds the tips and which one is on show.
    explicit TipsDialog(MyGlobalInstance& shared, QWidget* parent = nullptr);

  private:
    QLayout* makeTip();
    QLayout* makeButtons();
    void showTip();

    MyGlobalInstance& shared_;
    QLabel* tip_;
};

}  // namespace zelto
