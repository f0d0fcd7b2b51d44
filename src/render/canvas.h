// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures that drawing needs by the way. Where memory does not suffice for one, std::bad_alloc ends the whole photo, so
// that none is ever written with a part missing. buildPhotoScene() and MakeWatermarkImage() catch it.
#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include <new>
#include <utility>

namespace zelto {

// `picture`, which must have been made.
inline QImage allocated(QImage picture) {
    if (picture.isNull()) throw std::bad_alloc();
    return picture;
}

// A transparent canvas of `size` (not empty), premultiplied ARGB32.
inline QImage clearCanvas(QSize size) {
    QImage canvas = allocated(QImage(size, QImage::Format_ARGB32_Premultiplied));
    canvas.fill(Qt::transparent);
    return canvas;
}

// A painter's state, given back when this goes, by an exception too.
class SavedPainter {
  public:
    explicit SavedPainter(QPainter& painter) : painter_(painter) { painter_.save(); }
    ~SavedPainter() { painter_.restore(); }
    SavedPainter(const SavedPainter&) = delete;
    SavedPainter& operator=(const SavedPainter&) = delete;

  private:
    QPainter& painter_;
};

}  // namespace zelto
