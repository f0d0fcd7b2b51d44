// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/full_screen_view.h"

#include "app/common/icons.h"
#include "app/common/in_background.h"
#include "render/composition.h"
#include "render/effect_diagnostics.h"

#include <QKeyEvent>
#include <QLoggingCategory>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(fullScreen, "zelto.fullscreen", QtWarningMsg)

}  // namespace

FullScreenView* FullScreenView::open(const PhotoRequest& request, QWidget* parent) {
    auto* view = new FullScreenView(parent);
    view->showFullScreen();
    view->compose(request);
    return view;
}

FullScreenView::FullScreenView(QWidget* parent) : QWidget(parent, Qt::Window | Qt::FramelessWindowHint) {
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
        [this](const Composed& made) {
            picture_ = made.picture;
            message_ = made.message;
            update();
            Q_EMIT composed();
        });
    // As a run does for its last photo.
    inBackground(
        this, [request] { return writeEffectDiagnosticsOf(request.path, *request.stack); },
        [](const Result<void>& written) {
            if (!written) qCInfo(fullScreen, "%s", qUtf8Printable(written.error().message));
        });
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
}

void FullScreenView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    close();
}

}  // namespace zelto
