// SPDX-License-Identifier: GPL-3.0-or-later
// What belongs to the photo as a whole: filter, border and shadow, copyright data. Each has a place of its own below the
// watermark list, where it is added, switched, edited and removed. Main thread only.
#pragma once

#include <QWidget>

#include <vector>

class QToolButton;

namespace zelto {

class WatermarkController;
class WindowActions;

class PhotoStrip : public QWidget {
    Q_OBJECT

  public:
    // Both outlive it.
    PhotoStrip(WatermarkController& watermarks, WindowActions& actions, QWidget* parent = nullptr);

  private:
    struct Part;
    struct Cell {
        const Part* part;
        QToolButton* eye;
        QToolButton* edit;
        QToolButton* remove;
    };

    void follow();

    WatermarkController& watermarks_;
    std::vector<Cell> cells_;
};

}  // namespace zelto
