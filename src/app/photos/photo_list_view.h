// SPDX-License-Identifier: GPL-3.0-or-later
// The photo list on the screen: one row per photo with its check box, thumbnail, name, size and the outcome of the last
// run; photos that are filtered out have a hidden row. Rows are painted, not widgets, and of one height, so that the
// list is as quick with a hundred thousand photos as with ten. Main thread only.
#pragma once

#include "app/photos/thumbnail_loader.h"

#include <QListView>
#include <QTimer>

namespace zelto {

class ImageListController;

class PhotoListView : public QListView {
    Q_OBJECT

  public:
    explicit PhotoListView(ImageListController& photos, QWidget* parent = nullptr);

    // Where the check box of a row is, in viewport coordinates.
    QRect checkBoxRect(int row) const;

    // Whether the list can only be looked at: wheel, scroll bar and keys move what is seen, nothing is selected.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return isReadOnly_; }
    // Selects a row and brings it into view, unless the user has scrolled away from the one before.
    void follow(int row);

    void reset() override;

  protected:
    void dataChanged(const QModelIndex& first, const QModelIndex& last,
                     const QList<int>& roles = {}) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void hideFilteredOut();
    void wantVisible();

    ImageListController& photos_;
    ThumbnailLoader thumbnails_;
    QTimer settled_;  // runs while the list is being scrolled
    bool isReadOnly_ = false;
};

}  // namespace zelto
