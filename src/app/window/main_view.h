// SPDX-License-Identifier: GPL-3.0-or-later
// The content of the main window as a target for files: it knows which files may be dropped, shows a frame
// while they are over the window, and hands them to the photo list. Main thread only.
#pragma once

#include <QList>
#include <QUrl>
#include <QWidget>

#include <functional>

class QMimeData;

namespace zelto {

class MainView : public QWidget {
    Q_OBJECT

  public:
    explicit MainView(QWidget* parent = nullptr);

    // Takes the dropped files: photos, by their names, that are not folders.
    void setDelegate(std::function<void(const QList<QUrl>&)> addImagesFromUrls) {
        add_ = std::move(addImagesFromUrls);
    }

    // The steps of a drag over the window. Each tells whether the drag is welcome.
    bool draggingEntered(const QMimeData& dragged);
    void draggingExited();
    bool performDragOperation(const QMimeData& dragged);

    bool isReceivingDrag() const { return isReceivingDrag_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void setReceivingDrag(bool receiving);

    std::function<void(const QList<QUrl>&)> add_;
    QWidget* frame_;
    bool isReceivingDrag_ = false;
};

}  // namespace zelto
