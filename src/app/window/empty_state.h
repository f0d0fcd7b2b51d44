// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the place of the preview while there is no photo: what to do, and the buttons to do it. Main
// thread only.
#pragma once

#include <QWidget>

class QAction;

namespace zelto {

class EmptyState : public QWidget {
    Q_OBJECT

  public:
    EmptyState(QAction* addPhotos, QAction* addFolder, QWidget* parent = nullptr);
};

}  // namespace zelto
