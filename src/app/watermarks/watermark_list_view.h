// SPDX-License-Identifier: GPL-3.0-or-later
// The watermark list on the screen: rows can be selected several at a time, dragged to other places and renamed in
// place. Main thread only.
#pragma once

#include <QListView>

namespace zelto {

class WatermarkController;

class WatermarkListView : public QListView {
    Q_OBJECT

  public:
    explicit WatermarkListView(WatermarkController& watermarks, QWidget* parent = nullptr);

    // Opens the field for the name of the selected watermark.
    void renameSelected();

  Q_SIGNALS:
    // A row was double-clicked, or Enter was pressed on it.
    void opened(int row);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    WatermarkController& watermarks_;
};

}  // namespace zelto
