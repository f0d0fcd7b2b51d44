// SPDX-License-Identifier: GPL-3.0-or-later
// Stacks as pictures to choose from: the saved ones in a list that drops down from the head of the stack, and the
// ready-made ones as a row or a block of buttons. The pictures come one by one from the thread pool. Main thread only.
#pragma once

#include "records/watermark_stack.h"

#include <QFrame>
#include <QString>

#include <functional>

class QListWidget;

namespace zelto {

// A popup that closes when a stack has been chosen, by a click or by Enter.
class SavedStacksPopup : public QFrame {
    Q_OBJECT

  public:
    // `folder` is that of the saved settings; `current` is the name of the one that is loaded.
    SavedStacksPopup(const QString& folder, const QString& current, QWidget* parent);

    QListWidget& list() { return *list_; }
    // Shows it below `anchor`, in the middle of it where that has room.
    void openBelow(QWidget& anchor);

  Q_SIGNALS:
    void chosen(const QString& name);

  private:
    void choose();
    void drawNext(int row);

    QString folder_;
    QListWidget* list_;
};

// One button for each ready-made stack, `columns` side by side; `chosen` gets its place in readyMadeStacks().
QWidget* makeReadyMadeButtons(int columns, QSize pictureSize, const std::function<void(int place)>& chosen,
                              QWidget* parent);

}  // namespace zelto
