// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_sample.h"

#include "app/common/hearing.h"
#include "app/common/in_background.h"
#include "pictures/picture_reader.h"
#include "render/qt_color.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace zelto {
namespace {

constexpr int Square = 6;  // of the ground, pixels

Result<Picture> readLogo(const QByteArray& data, const QString& path) {
    if (Result<Picture> kept = decodePicture(data)) return kept;
    return readPicture(path);
}

QPixmap makeGround() {
    QPixmap ground(2 * Square, 2 * Square);
    ground.fill(Qt::white);
    QPainter painter(&ground);
    painter.fillRect(0, 0, Square, Square, Qt::lightGray);
    painter.fillRect(Square, Square, Square, Square, Qt::lightGray);
    return ground;
}

}  // namespace

LogoSample::LogoSample(QWidget* parent) : QWidget(parent) {
    setMinimumSize(160, 110);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Logo"));
    setAccessibleRole(*this, QAccessible::Graphic);
}

void LogoSample::load(const Watermark& record) {
    picksColor_ = record.IsTransparent;
    setCursor(picksColor_ && !picture_.isNull() ? Qt::CrossCursor : Qt::ArrowCursor);
    setToolTip(picksColor_ ? tr("Click the colour that is to become transparent") : QString());
    if (record.ImagePath == path_ && record.ImageData == data_) return;
    path_ = record.ImagePath;
    data_ = record.ImageData;
    picture_ = {};
    scaled_ = {};
    message_.clear();
    update();
    ++asked_;
    if (!path_.isEmpty() || !data_.isEmpty()) read();
}

void LogoSample::read() {
    inBackground(
        this, [data = data_, path = path_] { return readLogo(data, path); },
        [this, asked = asked_](const Result<Picture>& logo) {
            if (asked_ != asked) return;
            picture_ = logo ? logo->image : QImage();
            message_ = logo ? QString() : logo.error().message;
            if (picksColor_) setCursor(Qt::CrossCursor);
            update();
        });
}

QRect LogoSample::place() const {
    const QSize largest = size().boundedTo(picture_.size());
    const QSize drawn = picture_.size().scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {QPoint((width() - drawn.width()) / 2, (height() - drawn.height()) / 2), drawn};
}

void LogoSample::resizeEvent(QResizeEvent* /*event*/) {
    scaled_ = {};
}

void LogoSample::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (picture_.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, message_);
        return;
    }
    const QRect area = place();
    if (scaled_.isNull()) {
        const QSize pixels = (QSizeF(area.size()) * devicePixelRatioF()).toSize();
        scaled_ =
            QPixmap::fromImage(picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    static const QPixmap ground = makeGround();
    painter.drawTiledPixmap(area, ground);
    painter.drawPixmap(area, scaled_);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void LogoSample::mousePressEvent(QMouseEvent* event) {
    const QRect area = place();
    if (!picksColor_ || picture_.isNull() || !area.contains(event->pos())) {
        QWidget::mousePressEvent(event);
        return;
    }
    const QPoint at = event->pos() - area.topLeft();
    const QColor color = picture_.pixelColor(at.x() * picture_.width() / area.width(),
                                             at.y() * picture_.height() / area.height());
    if (color.alpha() != 0) Q_EMIT chosen(toColor(QColor(color.rgb())));
}

}  // namespace zelto
