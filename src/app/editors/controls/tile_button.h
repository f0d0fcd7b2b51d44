// SPDX-License-Identifier: GPL-3.0-or-later
// A picture to choose among others of its button group: the chosen one has a frame in the accent colour, which is seen
// in every style and theme. Main thread only.
#pragma once

#include <QToolButton>

namespace zelto {

class TileButton : public QToolButton {
    Q_OBJECT

  public:
    TileButton(const QIcon& icon, const QString& name, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zelto
