// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/color_well.h"

#include "app/editors/controls/color_panel.h"
#include "render/qt_color.h"

#include <QEvent>
#include <QFormLayout>
#include <QPainter>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace zelto {
namespace {

constexpr int Frame = 6;  // of the button around its colour

QString describe(const std::optional<Color>& color) {
    if (!color) return ColorWell::tr("No colour");
    const QColor shown = toQColor(*color);
    if (shown.alpha() == 255) return shown.name();
    return ColorWell::tr("%1, %2% opaque").arg(shown.name()).arg(std::lround(shown.alphaF() * 100.0F));
}

// Where an item lies: in which layout, at which place.
struct Spot {
    QLayout* layout;
    int index;
};

std::optional<Spot> spotOf(QLayout& layout, const QObject& child) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (item->widget() == &child || item->layout() == &child) return Spot{&layout, i};
        if (item->layout() == nullptr) continue;
        if (const auto spot = spotOf(*item->layout(), child)) return spot;
    }
    return std::nullopt;
}

// Puts `panel` below the row that `anchor` stands in, across the whole form or column.
void putBelow(QWidget& anchor, QWidget* panel) {
    const QObject* child = &anchor;
    QWidget* parent = anchor.parentWidget();
    while (parent != nullptr) {
        const auto spot = parent->layout() != nullptr ? spotOf(*parent->layout(), *child) : std::nullopt;
        if (spot) {
            if (auto* form = qobject_cast<QFormLayout*>(spot->layout)) {
                int row = 0;
                QFormLayout::ItemRole role{};
                form->getItemPosition(spot->index, &row, &role);
                form->insertRow(row + 1, panel);
                return;
            }
            if (auto* column = qobject_cast<QVBoxLayout*>(spot->layout)) {
                column->insertWidget(spot->index + 1, panel);
                return;
            }
        }
        // It stands in a row: below whatever holds the row.
        if (spot && spot->layout != parent->layout()) {
            child = spot->layout;
        } else {
            child = parent;
            parent = parent->parentWidget();
        }
    }
}

// Scrolls the page that the widget stands on.
void bringIntoView(QWidget& widget) {
    constexpr int Margin = 8;
    for (QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) area->ensureWidgetVisible(&widget, 0, Margin);
    }
}

}  // namespace

ColorWell::ColorWell(const QString& title, QWidget* parent) : QToolButton(parent) {
    setAccessibleName(title);
    setFocusPolicy(Qt::StrongFocus);
    setCheckable(true);
    connect(this, &QToolButton::toggled, this, &ColorWell::openPanel);
    load(std::nullopt);
}

void ColorWell::load(const std::optional<Color>& color) {
    color_ = color;
    if (panel_ != nullptr && isChecked() && color) panel_->load(toQColor(*color));
    setAccessibleDescription(describe(color));
    setToolTip(accessibleDescription());
    update();
}

QSize ColorWell::sizeHint() const {
    const int height = std::max(QToolButton::sizeHint().height(), fontMetrics().height() + 2 * Frame);
    return {height * 2, height};
}

void ColorWell::openPanel(bool open) {
    if (open) {
        for (ColorWell* other : window()->findChildren<ColorWell*>()) {
            if (other != this) other->setChecked(false);
        }
        before_ = color_;
        if (panel_ == nullptr) {
            panel_ = new ColorPanel(parentWidget());
            panel_->setObjectName(objectName() + QLatin1String("Panel"));
            putBelow(*this, panel_);
            connect(panel_, &ColorPanel::chosen, this,
                    [this](const QColor& color) { choose(toColor(color)); });
            connect(panel_, &ColorPanel::finished, this, [this](bool cancelled) {
                if (cancelled && before_) choose(*before_);
                setFocus();  // before what has it is hidden
                setChecked(false);
            });
        }
        panel_->load(color_ ? toQColor(*color_) : QColor(Qt::white));
    }
    if (panel_ != nullptr) panel_->setVisible(open);
    // Once the page has made room for it.
    if (open) QTimer::singleShot(0, panel_, [panel = panel_] { bringIntoView(*panel); });
}

// A colour that counts no longer is not to be chosen.
void ColorWell::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) setChecked(false);
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
    paintSeeThroughGround(painter, area);
    if (color_) painter.fillRect(area, toQColor(*color_));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
    if (color_) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, 1.5));
    painter.drawLine(QLineF(area.bottomLeft(), area.topRight()));
}

}  // namespace zelto
