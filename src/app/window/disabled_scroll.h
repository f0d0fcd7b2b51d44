// SPDX-License-Identifier: GPL-3.0-or-later
// Lets a list be scrolled by the wheel while it is disabled, so that it can be looked through during a run. Main thread
// only.
#pragma once

#include <QAbstractScrollArea>
#include <QObject>

namespace zelto {

class DisabledScroll : public QObject {
    Q_OBJECT

  public:
    // Lives as long as `view`.
    explicit DisabledScroll(QAbstractScrollArea& view);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QAbstractScrollArea& view_;
};

}  // namespace zelto
