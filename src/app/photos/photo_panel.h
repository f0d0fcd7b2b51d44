// SPDX-License-Identifier: GPL-3.0-or-later
// The photo list with what stands above it: its heading, the choice of photos after a run, the orders it can be put
// into, and the field that finds photos by their names. Main thread only.
#pragma once

#include "app/photos/photo_filter_box.h"
#include "app/photos/photo_list_view.h"

#include <QAction>
#include <QLineEdit>
#include <QList>
#include <QWidget>

namespace zelto {

class ImageListController;

class PhotoPanel : public QWidget {
    Q_OBJECT

  public:
    // `sortings` go into the menu of orders. All outlive it.
    PhotoPanel(ImageListController& photos, const QList<QAction*>& sortings, QWidget* parent = nullptr);

    PhotoListView& list() { return *list_; }
    PhotoFilterBox& filter() { return *filter_; }
    // Has the field take the keyboard.
    void find();
    // While a run is under way everything is there to be looked at.
    void setReadOnly(bool readOnly);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    ImageListController& photos_;
    PhotoListView* list_;
    PhotoFilterBox* filter_;
    QLineEdit* find_;
};

}  // namespace zelto
