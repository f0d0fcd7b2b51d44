// SPDX-License-Identifier: GPL-3.0-or-later
// One photo with its watermarks on the whole screen, as it would be written. Page Up, Page Down and the arrow keys step
// through the photos; any other key or the button closes it. Main thread only; the picture is composed in the
// background.
#pragma once

#include "render/photo_scene.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace zelto {

class FullScreenView : public QWidget {
    Q_OBJECT

  public:
    // Goes on by so many photos and returns the request for the one come to.
    using Step = std::function<PhotoRequest(int photos)>;

    // Shows itself, and deletes itself when it is closed.
    static FullScreenView* open(const PhotoRequest& request, Step step, QWidget* parent);

    const QImage& picture() const { return picture_; }

  Q_SIGNALS:
    void composed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    FullScreenView(Step step, QWidget* parent);
    void compose(const PhotoRequest& request);
    void stepBy(int photos);

    Step step_;
    QString path_;   // of the photo wanted last
    QString shown_;  // of the photo whose picture is shown
    QImage picture_;
    QString message_;
};

}  // namespace zelto
