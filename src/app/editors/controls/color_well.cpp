// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/color_well.h"

#include "render/qt_color.h"

#include <QPainter>

#include <cmath>

namespace zelto {
namespace {

constexpr int Frame = 6;   // of the button around its colour
constexpr int Square = 5;  // of the ground that shows through

QString describe(const std::optional<Color>& color) {
    if (!color) return ColorWell::tr("No colour");
    const QColor shown = toQColor(*color);
    if (shown.alpha() == 255) return shown.name();
    return ColorWell::tr("%1, %2% opaque").arg(shown.name()).arg(std::lround(shown.alphaF() * 100.0F));
}

void paintGround(QPainter& painter, const QRect& area) {
    painter.fillRect(area, Qt::white);
    for (int y = 0; y * Square < area.height(); ++y) {
        for (int x = y % 2; x * Square < area.width(); x += 2) {
            const QRect square(area.x() + x * Square, area.y() + y * Square, Square, Square);
            painter.fillRect(square.intersected(area), Qt::lightGray);
        }
    }
}

}  // namespace

ColorWell::ColorWell(const QString& title, QWidget* parent) : QToolButton(parent) {
    setAccessibleName(title);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::clicked, this, &ColorWell::openDialog);
    load(std::nullopt);
}

void ColorWell::load(const std::optional<Color>& color) {
    color_ = color;
    setAccessibleDescription(describe(color));
    setToolTip(accessibleDescription());
    update();
}

QSize ColorWell::sizeHint() const {
    const int height = std::max(QToolButton::sizeHint().height(), fontMetrics().height() + 2 * Frame);
    return {height * 2, height};
}

void ColorWell::openDialog() {
    if (dialog_ != nullptr) {
        dialog_->raise();
        return;
    }
    dialog_ = new QColorDialog(color_ ? toQColor(*color_) : QColor(Qt::white), this);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setWindowTitle(accessibleName());
    // The toolkit's own dialog can also take a colour from the screen, and tells of each one looked at.
    dialog_->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::DontUseNativeDialog);
    const auto take = [this](const QColor& color) { choose(toColor(color)); };
    if (color_) {
        connect(dialog_, &QColorDialog::currentColorChanged, this, take);
        connect(dialog_, &QColorDialog::rejected, this, [this, before = *color_] { choose(before); });
    }
    connect(dialog_, &QColorDialog::colorSelected, this, take);
    dialog_->open();
}

void ColorWell::choose(const Color& color) {
    // A colour of a file may lie between those of 8 bits; choosing what is seen leaves it so.
    if (color_ && (color == *color_ || color == toColor(toQColor(*color_)))) return;
    load(color);
    Q_EMIT chosen(color);
}

void ColorWell::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    QPainter painter(this);
    const QRect area = rect().adjusted(Frame, Frame, -Frame, -Frame);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);
    paintGround(painter, area);
    if (color_) painter.fillRect(area, toQColor(*color_));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
    if (color_) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, 1.5));
    painter.drawLine(QLineF(area.bottomLeft(), area.topRight()));
}

}  // namespace zelto
