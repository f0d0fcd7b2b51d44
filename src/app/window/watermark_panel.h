// SPDX-License-Identifier: GPL-3.0-or-later
// The stack on the screen: its head, the watermark list with its buttons, and what belongs to the photo as a whole.
// Main thread only.
#pragma once

#include "app/watermarks/watermark_list_view.h"

#include <QWidget>

class QLabel;

namespace zelto {

class StackHead;
class StackKeeper;
class WatermarkController;
class WatermarkEditors;
class WindowActions;

class WatermarkPanel : public QWidget {
    Q_OBJECT

  public:
    WatermarkPanel(WatermarkController& watermarks, WatermarkEditors& editors, WindowActions& actions,
                   StackKeeper& keeper, QWidget* parent = nullptr);

    StackHead& head() { return *head_; }
    // Shows the ready-made stacks in the place of rows.
    void offerReadyMade(bool on);

    WatermarkListView& list() { return *list_; }

  private:
    StackHead* head_;
    WatermarkListView* list_;
    QWidget* readyMade_;
};

// The line above a list, telling what it holds.
QLabel* makeHeading(const QString& text, QWidget* parent);

}  // namespace zelto
