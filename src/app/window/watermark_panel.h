// SPDX-License-Identifier: GPL-3.0-or-later
// The watermark list on the screen, with its buttons. Main thread only.
#pragma once

#include <QListView>
#include <QWidget>

class QLabel;

namespace zelto {

class WatermarkController;
class WatermarkEditors;
class WindowActions;

class WatermarkPanel : public QWidget {
    Q_OBJECT

  public:
    WatermarkPanel(WatermarkController& watermarks, WatermarkEditors& editors, WindowActions& actions,
                   QWidget* parent = nullptr);

    QListView& list() { return *list_; }

  private:
    QListView* list_;
};

// The line above a list, telling what it holds.
QLabel* makeHeading(const QString& text, QWidget* parent);

}  // namespace zelto
