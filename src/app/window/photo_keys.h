// SPDX-License-Identifier: GPL-3.0-or-later
// Page Up and Page Down belong to the photos wherever in the window the keyboard is: no field or list may take these
// keys before the actions that step through the photos. Where those are off, the keys do what they do everywhere. Main
// thread only.
#pragma once

#include <QObject>
#include <QWidget>

namespace zelto {

class PhotoKeys : public QObject {
    Q_OBJECT

  public:
    // Lives as long as `window`.
    explicit PhotoKeys(QWidget* window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* window_;
};

}  // namespace zelto
