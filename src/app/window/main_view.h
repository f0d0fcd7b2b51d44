// SPDX-License-Identifier: GPL-3.0-or-later
// The content of the main window as a target for files: it knows which files may be dropped, shows a frame
// while they are over the window, and hands them to the photo list. Main thread only.
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

class QMimeData;

namespace zelto {

class MainView : public QWidget {
    Q_OBJECT

  public:
    explicit MainView(QWidget* parent = nullptr);

    // Takes the dropped files: photos and setting files, by their names, and folders.
    void setDelegate(std::function<void(const QStringList& paths)> add) { add_ = std::move(add); }

    // Whether there is anything among the files of a drag, or of the clipboard, that can be taken.
    static bool isWelcome(const QMimeData& files);
    // The steps of a drag over the window. Each tells whether the drag is welcome.
    bool draggingEntered(const QMimeData& dragged);
    void draggingExited();
    bool performDragOperation(const QMimeData& dragged);

    bool isReceivingDrag() const { return isReceivingDrag_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void setReceivingDrag(bool receiving);

    std::function<void(const QStringList& paths)> add_;
    QWidget* frame_;
    bool isReceivingDrag_ = false;
};

}  // namespace zelto
