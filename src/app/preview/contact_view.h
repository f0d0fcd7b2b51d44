// SPDX-License-Identifier: GPL-3.0-or-later
// Up to nine photos of the list with the stack as it is now, chosen to differ in size and shape, so that a mark is seen
// to sit well on all of them. It follows every edit. A click on a photo goes to it, and so does Enter after the arrow
// keys. While it is hidden it does nothing. Main thread only.
#pragma once

#include "app/preview/contact_scenes.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace zelto {

class ContactView : public QWidget {
    Q_OBJECT

  public:
    static constexpr int MostPhotos = 9;

    // `requestFor` makes the request for the photo of a row as the preview shows it.
    explicit ContactView(std::function<PhotoRequest(int row)> requestFor, QWidget* parent = nullptr);

    // Shows photos of these rows, `row` among them.
    void showRows(const std::vector<int>& rows, int row);
    // The stack has changed.
    void updateStack();
    void clear();

    struct Cell {
        int row = 0;
        QString name;
        QImage picture;
        QSize photoSize;
        QString message;   // why there is no picture
        QString warnings;  // what draws nothing on it
    };
    const std::vector<Cell>& cells() const { return cells_; }
    // Where a cell lies, with its caption; device-independent pixels of the widget.
    QRect cellRect(int place) const;
    bool isSettled() const { return !isChoosing_ && scenes_.isSettled(); }

  Q_SIGNALS:
    void chosen(int row);
    void closed();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void takeRows(const std::vector<int>& rows);
    std::vector<PhotoRequest> requests() const;
    void showAll();
    int columns() const;
    int captionHeight() const;
    QRect pictureRect(int place) const;
    int placeAt(QPoint point) const;
    void paintCell(QPainter& painter, int place) const;

    std::function<PhotoRequest(int)> requestFor_;
    ContactScenes scenes_;
    std::vector<Cell> cells_;
    int row_ = -1;     // the photo that is selected in the list
    int current_ = 0;  // the place the keyboard is at
    int hovered_ = -1;
    int choice_ = 0;  // which choice of photos is being waited for
    bool isChoosing_ = false;
};

}  // namespace zelto
