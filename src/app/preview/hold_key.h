// SPDX-License-Identifier: GPL-3.0-or-later
// A key that counts for as long as it is held, wherever in a window the keyboard is. Main thread only.
#pragma once

#include <QObject>

class QWidget;

namespace zelto {

class HoldKey : public QObject {
    Q_OBJECT

  public:
    // `key` is one that types nothing; the window outlives it.
    HoldKey(Qt::Key key, QWidget* window);

    bool isHeld() const { return isHeld_; }

  Q_SIGNALS:
    void held(bool isHeld);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void set(bool isHeld);

    const Qt::Key key_;
    QWidget* window_;
    bool isHeld_ = false;
};

}  // namespace zelto
