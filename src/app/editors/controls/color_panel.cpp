// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/color_panel.h"

#include "app/common/hearing.h"
#include "app/common/icons.h"
#include "app/editors/controls/number_field.h"
#include "platform/preferences.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace zelto {

void paintSeeThroughGround(QPainter& painter, const QRect& area) {
    constexpr int Square = 5;
    painter.fillRect(area, Qt::white);
    for (int y = 0; y * Square < area.height(); ++y) {
        for (int x = y % 2; x * Square < area.width(); x += 2) {
            const QRect square(area.x() + x * Square, area.y() + y * Square, Square, Square);
            painter.fillRect(square.intersected(area), Qt::lightGray);
        }
    }
}

namespace {

constexpr NumberKind Opacity{0, 100, 0, QLatin1String(" %")};
constexpr QRgb Usual[] = {0xFFFFFFFF, 0xFF000000, 0xFF808080, 0xFFE02020, 0xFFF08010,
                          0xFFF7D514, 0xFF2E9B46, 0xFF1F6FD6, 0xFF7A3FB5, 0xFFE75A9C};
constexpr int RecentCount = 10;

QString hexOf(const QColor& color) {
    if (color.alpha() == 255) return color.name();
    return color.name() + QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
}

// "#rgb", "#rrggbb" or "#rrggbbaa", with or without the "#"; an invalid colour for anything else.
QColor colorOfHex(QString text, int alpha) {
    text.remove(QLatin1Char('#'));
    if (text.size() != 3 && text.size() != 6 && text.size() != 8) return {};
    QColor color = QColor::fromString(QLatin1Char('#') + (text.size() == 8 ? text.first(6) : text));
    color.setAlpha(text.size() == 8 ? text.sliced(6).toInt(nullptr, 16) : alpha);
    return color;
}

void paintFocus(QPainter& painter, const QWidget& widget) {
    if (!widget.hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(widget.palette().color(QPalette::Highlight), 2.0));
    painter.drawRect(QRectF(widget.rect()).adjusted(1.0, 1.0, -1.0, -1.0));
}

}  // namespace

// A slider that looks like the colours it chooses from.
class ColorStrip : public QSlider {
  public:
    ColorStrip(const QString& name, int largest, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
        setRange(0, largest);
        setAccessibleName(name);
        setToolTip(name);
        setFixedHeight(18);
        setFocusPolicy(Qt::StrongFocus);
    }

    void setStops(const QGradientStops& stops) {
        stops_ = stops;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QRect area = rect().adjusted(Inset, 2, -Inset, -2);
        paintSeeThroughGround(painter, area);
        QLinearGradient gradient(area.topLeft(), area.topRight());
        gradient.setStops(stops_);
        painter.fillRect(area, gradient);
        painter.setRenderHint(QPainter::Antialiasing);
        const double x = area.x() + static_cast<double>(area.width()) * value() / maximum();
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.0));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(QRectF(x - 3.0, 0.5, 6.0, height() - 1.0), 2.0, 2.0);
        paintFocus(painter, *this);
    }
    void mousePressEvent(QMouseEvent* event) override { take(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { take(*event); }

  private:
    static constexpr int Inset = 4;

    void take(const QMouseEvent& event) {
        if (!event.buttons().testFlag(Qt::LeftButton)) return;
        const double share = (event.position().x() - Inset) / std::max(1, width() - 2 * Inset);
        setValue(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * maximum())));
    }

    QGradientStops stops_;
};

// The shades of one hue: saturation to the right, brightness upward.
class ColorField : public QWidget {
  public:
    ColorField(std::function<void(double saturation, double value)> choose, QWidget* parent)
        : QWidget(parent), choose_(std::move(choose)) {
        setAccessibleName(ColorPanel::tr("Shade"));
        setAccessibleRole(*this, QAccessible::ColorChooser);
        setFixedHeight(96);
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::CrossCursor);
    }

    void load(int hue, double saturation, double value) {
        hue_ = hue;
        saturation_ = saturation;
        value_ = value;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        QLinearGradient across(rect().topLeft(), rect().topRight());
        across.setColorAt(0.0, Qt::white);
        across.setColorAt(1.0, QColor::fromHsv(hue_, 255, 255));
        painter.fillRect(rect(), across);
        QLinearGradient down(rect().topLeft(), rect().bottomLeft());
        down.setColorAt(0.0, Qt::transparent);
        down.setColorAt(1.0, Qt::black);
        painter.fillRect(rect(), down);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPointF place(saturation_ * width(), (1.0 - value_) * height());
        for (const auto& [color, radius] : {std::pair(Qt::black, 6.0), {Qt::white, 5.0}}) {
            painter.setPen(QPen(color, 1.5));
            painter.drawEllipse(place, radius, radius);
        }
        paintFocus(painter, *this);
    }
    void mousePressEvent(QMouseEvent* event) override { take(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { take(*event); }
    void keyPressEvent(QKeyEvent* event) override {
        constexpr double Step = 0.02;
        const int key = event->key();
        const double right = key == Qt::Key_Right ? Step : key == Qt::Key_Left ? -Step : 0.0;
        const double up = key == Qt::Key_Up ? Step : key == Qt::Key_Down ? -Step : 0.0;
        if (right == 0.0 && up == 0.0) {
            QWidget::keyPressEvent(event);
        } else {
            choose(saturation_ + right, value_ + up);
        }
    }

  private:
    void take(const QMouseEvent& event) {
        if (!event.buttons().testFlag(Qt::LeftButton)) return;
        choose(event.position().x() / width(), 1.0 - event.position().y() / height());
    }
    void choose(double saturation, double value) {
        choose_(std::clamp(saturation, 0.0, 1.0), std::clamp(value, 0.0, 1.0));
    }

    std::function<void(double, double)> choose_;
    int hue_ = 0;
    double saturation_ = 0.0;
    double value_ = 0.0;
};

ColorPanel::ColorPanel(QWidget* parent)
    : QWidget(parent),
      field_(new ColorField(
          [this](double saturation, double value) {
              choose(QColor::fromHsvF(static_cast<float>(hue_) / 360.0F, static_cast<float>(saturation),
                                      static_cast<float>(value), color_.alphaF()));
          },
          this)),
      hueStrip_(new ColorStrip(tr("Hue"), 359, this)),
      opacityStrip_(new ColorStrip(tr("Opacity of the colour"), 255, this)) {
    QGradientStops hues;
    for (int i = 0; i <= 6; ++i) hues.append({i / 6.0, QColor::fromHsv(i * 60 % 360, 255, 255)});
    hueStrip_->setStops(hues);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 2, 0, 6);
    column->setSpacing(5);
    for (QWidget* part : {static_cast<QWidget*>(field_), static_cast<QWidget*>(hueStrip_),
                          static_cast<QWidget*>(opacityStrip_)}) {
        column->addWidget(part);
    }
    column->addLayout(makeNumbers());
    column->addLayout(makeSwatches());
    connect(hueStrip_, &QSlider::valueChanged, this, [this](int hue) {
        hue_ = hue;
        QColor color = QColor::fromHsv(hue, color_.hsvSaturation(), color_.value(), color_.alpha());
        choose(color);
    });
    connect(opacityStrip_, &QSlider::valueChanged, this, [this](int alpha) {
        QColor color = color_;
        color.setAlpha(alpha);
        choose(color);
    });
    load(Qt::white);
}

ColorPanel::~ColorPanel() = default;

QLayout* ColorPanel::makeNumbers() {
    hex_ = new QLineEdit(this);
    hex_->setObjectName(QStringLiteral("Hex"));
    hex_->setAccessibleName(tr("Colour in hexadecimal"));
    hex_->setToolTip(tr("Red, green and blue in hexadecimal, and opacity if you like: #rrggbb or #rrggbbaa"));
    static const QRegularExpression digits(QStringLiteral("#?[0-9A-Fa-f]{0,8}"));
    hex_->setValidator(new QRegularExpressionValidator(digits, hex_));
    connect(hex_, &QLineEdit::textEdited, this, [this](const QString& text) {
        const QColor color = colorOfHex(text, color_.alpha());
        if (color.isValid()) choose(color);
    });
    opacity_ = new NumberField(Opacity, this);
    opacity_->setAccessibleName(tr("Opacity in per cent"));
    opacity_->setToolTip(tr("Opacity of the colour"));
    connect(opacity_, &NumberField::valueChanged, this, [this](double percent) {
        QColor color = color_;
        color.setAlphaF(static_cast<float>(percent / 100.0));
        choose(color);
    });
    pick_ = new QToolButton(this);
    pick_->setIcon(lineIcon(QLatin1String("pick")));
    pick_->setCheckable(true);
    pick_->setFocusPolicy(Qt::StrongFocus);
    pick_->setAccessibleName(tr("Pick a colour from the photo"));
    pick_->setToolTip(tr("Pick a colour from the photo: click on it, Escape gives up"));
    connect(pick_, &QToolButton::toggled, this, &ColorPanel::pickFromWindow);
    auto* row = new QHBoxLayout;
    row->addWidget(hex_, 1);
    row->addWidget(opacity_);
    row->addWidget(pick_);
    return row;
}

QLayout* ColorPanel::makeSwatches() {
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    for (int i = 0; i < RecentCount + static_cast<int>(std::size(Usual)); ++i) {
        auto* swatch = new QToolButton(this);
        swatch->setAutoRaise(true);
        swatch->setFocusPolicy(Qt::StrongFocus);
        swatch->setFixedSize(26, 22);
        swatch->setIconSize({18, 14});
        grid->addWidget(swatch, i / RecentCount, i % RecentCount);
        swatches_.append(swatch);
        connect(swatch, &QToolButton::clicked, this,
                [this, swatch] { take(swatch->property("color").value<QColor>()); });
    }
    grid->setColumnStretch(RecentCount, 1);
    return grid;
}

// The usual colours, then those chosen last.
void ColorPanel::showSwatches() {
    QStringList names;
    for (const QRgb usual : Usual) names.append(hexOf(QColor(usual)));
    names += storedPreference(preference::RecentColors).value_or(QStringList());
    for (int i = 0; i < swatches_.size(); ++i) {
        QToolButton& swatch = *swatches_[i];
        swatch.setVisible(i < names.size());
        if (i >= names.size()) continue;
        const QColor color = colorOfHex(names[i], 255);
        QPixmap picture(swatch.iconSize() * devicePixelRatioF());
        picture.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&picture);
        const QRect area(QPoint(), swatch.iconSize());
        paintSeeThroughGround(painter, area);
        painter.fillRect(area, color);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(area.adjusted(0, 0, -1, -1));
        painter.end();
        swatch.setIcon(QIcon(picture));
        swatch.setProperty("color", color);
        swatch.setAccessibleName(names[i]);
        swatch.setToolTip(names[i]);
    }
}

void ColorPanel::load(const QColor& color) {
    if (!isVisible()) showSwatches();
    color_ = color.toRgb();
    if (color_.hsvHue() >= 0) hue_ = color_.hsvHue();
    const QSignalBlocker quietHue(hueStrip_);
    const QSignalBlocker quietOpacity(opacityStrip_);
    field_->load(hue_, static_cast<double>(color_.hsvSaturationF()), static_cast<double>(color_.valueF()));
    hueStrip_->setValue(hue_);
    QColor clear = color_;
    clear.setAlpha(0);
    QColor full = color_;
    full.setAlpha(255);
    opacityStrip_->setStops({{0.0, clear}, {1.0, full}});
    opacityStrip_->setValue(color_.alpha());
    opacity_->load(std::round(static_cast<double>(color_.alphaF()) * 100.0));
    if (colorOfHex(hex_->text(), color_.alpha()) != color_) hex_->setText(hexOf(color_));
}

void ColorPanel::choose(const QColor& color) {
    if (color.toRgb().rgba() == color_.rgba()) {
        field_->load(hue_, static_cast<double>(color.hsvSaturationF()), static_cast<double>(color.valueF()));
        return;
    }
    take(color);
}

void ColorPanel::take(const QColor& color) {
    isChosen_ = true;
    load(color);
    Q_EMIT chosen(color_);
}

// ---- a colour of the window

void ColorPanel::pickFromWindow(bool on) {
    if (on) {
        grabMouse(Qt::CrossCursor);
        grabKeyboard();
    } else {
        releaseMouse();
        releaseKeyboard();
    }
}

void ColorPanel::mousePressEvent(QMouseEvent* event) {
    if (!pick_->isChecked()) {
        QWidget::mousePressEvent(event);
        return;
    }
    pick_->setChecked(false);
    const QPoint place = window()->mapFromGlobal(event->globalPosition().toPoint());
    if (!window()->rect().contains(place)) return;
    QColor color = window()->grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
    color.setAlpha(color_.alpha());
    choose(color);
}

void ColorPanel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (pick_->isChecked()) {
        if (key == Qt::Key_Escape) pick_->setChecked(false);
    } else if (isEnter || key == Qt::Key_Escape) {
        Q_EMIT finished(!isEnter);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ColorPanel::hideEvent(QHideEvent* event) {
    pick_->setChecked(false);
    if (!event->spontaneous() && std::exchange(isChosen_, false)) remember();
    QWidget::hideEvent(event);
}

void ColorPanel::remember() {
    const QString name = hexOf(color_);
    const bool isUsual = std::any_of(std::begin(Usual), std::end(Usual),
                                     [&](QRgb usual) { return hexOf(QColor(usual)) == name; });
    if (isUsual) return;
    QStringList recent = storedPreference(preference::RecentColors).value_or(QStringList());
    recent.removeAll(name);
    recent.prepend(name);
    setPreference(preference::RecentColors, recent.mid(0, RecentCount));
}

}  // namespace zelto
