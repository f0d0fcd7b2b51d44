// SPDX-License-Identifier: GPL-3.0-or-later
// The head of the stack: which saved stack is on screen, with a dot while it has been changed, and what can be done with
// it as a whole. Main thread only.
#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace zelto {

class StackKeeper;
class WindowActions;

class StackHead : public QWidget {
    Q_OBJECT

  public:
    // Both outlive it.
    StackHead(StackKeeper& keeper, WindowActions& actions, QWidget* parent = nullptr);

    // The button with the name, below which the saved stacks are shown.
    QToolButton& name() { return *name_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void follow();

    StackKeeper& keeper_;
    WindowActions& actions_;
    QToolButton* name_;
};

}  // namespace zelto
