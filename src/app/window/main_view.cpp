// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/main_view.h"

#include "persistence/settings_library.h"
#include "pictures/picture_names.h"

#include <QFileInfo>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

#include <algorithm>

namespace zelto {
namespace {

// Lies over everything while files are dragged over the window.
class DropFrame : public QWidget {
  public:
    explicit DropFrame(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int Width = 10;
        QPainter painter(this);
        painter.setPen(
            QPen(palette().color(QPalette::Highlight), Width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect());
    }
};

bool canBeTaken(const QUrl& url) {
    const QString path = url.toLocalFile();
    return url.isLocalFile() && (isPictureName(path) || isSettingFileName(path) || QFileInfo(path).isDir());
}

}  // namespace

MainView::MainView(QWidget* parent) : QWidget(parent), frame_(new DropFrame(this)) {}

bool MainView::isWelcome(const QMimeData& files) {
    const QList<QUrl> urls = files.urls();
    return std::any_of(urls.begin(), urls.end(), canBeTaken);
}

bool MainView::draggingEntered(const QMimeData& dragged) {
    setReceivingDrag(isWelcome(dragged));
    return isReceivingDrag_;
}

void MainView::draggingExited() {
    setReceivingDrag(false);
}

bool MainView::performDragOperation(const QMimeData& dragged) {
    setReceivingDrag(false);
    QStringList paths;
    for (const QUrl& url : dragged.urls()) {
        if (canBeTaken(url)) paths.append(url.toLocalFile());
    }
    if (paths.isEmpty()) return false;
    add_(paths);
    return true;
}

void MainView::setReceivingDrag(bool receiving) {
    isReceivingDrag_ = receiving;
    frame_->setGeometry(rect());
    frame_->raise();
    frame_->setVisible(receiving);
}

void MainView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    frame_->setGeometry(rect());
}

}  // namespace zelto
