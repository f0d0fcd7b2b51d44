// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/full_screen_view.h"

#include "app/common/icons.h"
#include "app/common/in_background.h"
#include "platform/path_parts.h"
#include "render/composition.h"
#include "render/effect_diagnostics.h"

#include <QKeyEvent>
#include <QLoggingCategory>
#include <QPainter>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(fullScreen, "zelto.fullscreen", QtWarningMsg)

}  // namespace

FullScreenView* FullScreenView::open(const PhotoRequest& request, Step step, QWidget* parent) {
    auto* view = new FullScreenView(std::move(step), parent);
    view->showFullScreen();
    view->compose(request);
    // As a run does for its last photo.
    inBackground(
        view, [request] { return writeEffectDiagnosticsOf(request.path, *request.stack); },
        [](const Result<void>& written) {
            if (!written) qCInfo(fullScreen, "%s", qUtf8Printable(written.error().message));
        });
    return view;
}

FullScreenView::FullScreenView(Step step, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint), step_(std::move(step)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowTitle(tr("Full Screen"));
    QPalette dark(Qt::black);
    dark.setColor(QPalette::ButtonText, Qt::white);
    setPalette(dark);
    message_ = tr("One moment...");

    auto* exit = new QToolButton(this);
    exit->setText(tr("Exit Full Screen"));
    exit->setAutoRaise(true);
    exit->setFocusPolicy(Qt::NoFocus);
    exit->setObjectName(QStringLiteral("ExitFullScreen"));
    connect(exit, &QToolButton::clicked, this, &QWidget::close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(exit, 0, Qt::AlignRight | Qt::AlignTop);
}

void FullScreenView::compose(const PhotoRequest& request) {
    constexpr int PatienceMilliseconds = 300;
    path_ = request.path;
    QTimer::singleShot(PatienceMilliseconds, this, [this, path = path_] {
        if (path != path_ || path == shown_) return;
        message_ = tr("Loading %1...").arg(lastPathComponent(path));
        update();
    });
    struct Composed {
        QImage picture;
        QString message;
    };
    inBackground(
        this,
        [request] {
            Result<PhotoScene> scene = buildPhotoScene(request);
            if (!scene) return Composed{{}, scene.error().message};
            return Composed{MakeWatermarkImage(std::move(*scene), *request.stack), {}};
        },
        [this, path = request.path](const Composed& made) {
            if (path != path_) return;  // another one is wanted by now
            shown_ = path;
            picture_ = made.picture;
            message_ = made.message;
            update();
            Q_EMIT composed();
        });
}

void FullScreenView::stepBy(int photos) {
    const PhotoRequest request = step_(photos);
    if (request.path != path_) compose(request);
}

void FullScreenView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (picture_.isNull()) {
        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter, message_);
        return;
    }
    // No photo is shown larger than it is: one of its pixels takes at most one of the screen's.
    const QSizeF actual = QSizeF(picture_.size()) / devicePixelRatioF();
    const double scale = std::min({1.0, width() / actual.width(), height() / actual.height()});
    QRectF place(QPointF(), actual * scale);
    place.moveCenter(QRectF(rect()).center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture_);
    if (message_.isEmpty()) return;
    const QRect line = fontMetrics().boundingRect(message_).adjusted(-12, -6, 12, 6);
    const QRect sign(QPoint((width() - line.width()) / 2, height() - 2 * line.height()), line.size());
    painter.fillRect(sign, QColor(0, 0, 0, 170));
    painter.setPen(Qt::white);
    painter.drawText(sign, Qt::AlignCenter, message_);
}

void FullScreenView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    switch (event->key()) {
        case Qt::Key_PageDown:
        case Qt::Key_Right:
        case Qt::Key_Down:
            stepBy(1);
            break;
        case Qt::Key_PageUp:
        case Qt::Key_Left:
        case Qt::Key_Up:
            stepBy(-1);
            break;
        default:
            close();
    }
}

}  // namespace zelto
