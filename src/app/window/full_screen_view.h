// SPDX-License-Identifier: GPL-3.0-or-later
// One photo with its watermarks on the whole screen, as it would be written. Any key or the button closes it.
// Main thread only; the picture is composed in the background.
#pragma once

#include "render/photo_scene.h"

#include <QImage>
#include <QWidget>

namespace zelto {

class FullScreenView : public QWidget {
    Q_OBJECT

  public:
    // Shows itself, and deletes itself when it is closed.
    static FullScreenView* open(const PhotoRequest& request, QWidget* parent);

    const QImage& picture() const { return picture_; }

  Q_SIGNALS:
    void composed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    explicit FullScreenView(QWidget* parent);
    void compose(const PhotoRequest& request);

    QImage picture_;
    QString message_;
};

}  // namespace zelto
