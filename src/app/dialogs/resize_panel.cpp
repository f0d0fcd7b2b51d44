// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/resize_panel.h"

#include "app/dialogs/resize_field.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

#include <limits>

namespace zelto {
namespace {

constexpr int Percentage = static_cast<int>(resize_type::Percentage);
constexpr int Pixels = static_cast<int>(resize_type::Pixels);
constexpr int LongerSide = static_cast<int>(resize_type::LongerSide);

int fieldValue(std::int64_t value) {
    return static_cast<int>(std::min<std::int64_t>(value, std::numeric_limits<int>::max()));
}

}  // namespace

ResizePanel::ResizePanel(QWidget* parent)
    : QGroupBox(tr("Resi&ze photos"), parent),
      ways_(new QButtonGroup(this)),
      percentageWidth_(new ResizeField(ResizeField::Unit::PerCent, tr("Width, per cent"), this)),
      percentageHeight_(new ResizeField(ResizeField::Unit::PerCent, tr("Height, per cent"), this)),
      absoluteWidth_(new ResizeField(ResizeField::Unit::Pixels, tr("Width, pixels"), this)),
      absoluteHeight_(new ResizeField(ResizeField::Unit::Pixels, tr("Height, pixels"), this)),
      longerSide_(new ResizeField(ResizeField::Unit::Pixels, tr("Longer side, pixels"), this)),
      aspectRatio_(new QCheckBox(tr("&Keep the proportions"), this)),
      dontEnlarge_(new QCheckBox(tr("Do not &enlarge small photos"), this)) {
    setCheckable(true);
    layOut();
    connectFields();
}

QRadioButton* ResizePanel::addWay(int way, const QString& text) {
    auto* button = new QRadioButton(text, this);
    ways_->addButton(button, way);
    return button;
}

void ResizePanel::layOut() {
    const QString times = QStringLiteral("×");
    auto* grid = new QGridLayout(this);
    grid->addWidget(addWay(Percentage, tr("&Percentage")), 0, 0);
    grid->addWidget(percentageWidth_, 0, 1);
    grid->addWidget(new QLabel(times, this), 0, 2);
    grid->addWidget(percentageHeight_, 0, 3);
    grid->addWidget(addWay(Pixels, tr("Pi&xels")), 1, 0);
    grid->addWidget(absoluteWidth_, 1, 1);
    grid->addWidget(new QLabel(times, this), 1, 2);
    grid->addWidget(absoluteHeight_, 1, 3);
    grid->addWidget(addWay(LongerSide, tr("&Longer side")), 2, 0);
    grid->addWidget(longerSide_, 2, 1);
    auto* boxes = new QHBoxLayout;
    boxes->addWidget(aspectRatio_);
    boxes->addSpacing(18);
    boxes->addWidget(dontEnlarge_);
    boxes->addStretch(1);
    grid->addLayout(boxes, 3, 0, 1, 5);
    grid->setColumnStretch(4, 1);
    // The eye goes row by row, and so does the Tab key; the buttons of a group are one stop.
    for (ResizeField* field :
         {percentageWidth_, percentageHeight_, absoluteWidth_, absoluteHeight_, longerSide_}) {
        field->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("1000000 px")) + 30);
    }
    QWidget* last = ways_->button(LongerSide);
    for (QWidget* next :
         std::initializer_list<QWidget*>{percentageWidth_, percentageHeight_, absoluteWidth_, absoluteHeight_,
                                         longerSide_, aspectRatio_, dontEnlarge_}) {
        setTabOrder(last, next);
        last = next;
    }
}

void ResizePanel::connectFields() {
    connect(percentageWidth_, &QSpinBox::valueChanged, this,
            [this](int value) { followPercentage(*percentageHeight_, value); });
    connect(percentageHeight_, &QSpinBox::valueChanged, this,
            [this](int value) { followPercentage(*percentageWidth_, value); });
    connect(aspectRatio_, &QCheckBox::clicked, this,
            [this] { followPercentage(*percentageHeight_, percentageWidth_->value()); });
    connect(this, &QGroupBox::toggled, this, &ResizePanel::EnableDisableResizeOptionsControls);
    connect(ways_, &QButtonGroup::idToggled, this, &ResizePanel::EnableDisableResizeOptionsControls);
    connect(aspectRatio_, &QCheckBox::toggled, this, &ResizePanel::changed);
    connect(dontEnlarge_, &QCheckBox::toggled, this, &ResizePanel::changed);
    for (ResizeField* field : {absoluteWidth_, absoluteHeight_, longerSide_}) {
        connect(field, &QSpinBox::valueChanged, this, &ResizePanel::changed);
    }
}

void ResizePanel::followPercentage(ResizeField& other, int value) {
    if (aspectRatio_->isChecked()) {
        const QSignalBlocker quiet(other);
        other.setValue(value);
    }
    Q_EMIT changed();
}

void ResizePanel::EnableDisableResizeOptionsControls() {
    const int way = ways_->checkedId();
    percentageWidth_->setEnabled(isChecked() && way == Percentage);
    percentageHeight_->setEnabled(isChecked() && way == Percentage);
    absoluteWidth_->setEnabled(isChecked() && way == Pixels);
    absoluteHeight_->setEnabled(isChecked() && way == Pixels);
    longerSide_->setEnabled(isChecked() && way == LongerSide);
    // Percentages enlarge whatever they are told to.
    dontEnlarge_->setEnabled(isChecked() && way != Percentage);
    Q_EMIT changed();
}

void ResizePanel::load(const OutputSettings& settings) {
    {
        const QSignalBlocker quiet(this);
        const QSignalBlocker widthQuiet(percentageWidth_);
        const QSignalBlocker heightQuiet(percentageHeight_);
        setChecked(settings.options.ResizeImage);
        ways_->button(static_cast<int>(settings.options.ResizeType))->setChecked(true);
        aspectRatio_->setChecked(settings.options.AspectRatio);
        dontEnlarge_->setChecked(settings.options.DontEnlargeSmallImage);
        percentageWidth_->setValue(fieldValue(settings.percentageWidth));
        percentageHeight_->setValue(fieldValue(settings.percentageHeight));
        absoluteWidth_->setValue(fieldValue(settings.absoluteWidth));
        absoluteHeight_->setValue(fieldValue(settings.absoluteHeight));
        longerSide_->setValue(fieldValue(settings.options.LongestsideSize));
    }
    EnableDisableResizeOptionsControls();
}

void ResizePanel::store(OutputSettings& settings) const {
    OutputOptions& options = settings.options;
    options.ResizeImage = isChecked();
    options.ResizeType = ways_->checkedId();
    options.AspectRatio = aspectRatio_->isChecked();
    options.DontEnlargeSmallImage = dontEnlarge_->isChecked();
    options.LongestsideSize = longerSide_->value();
    settings.percentageWidth = percentageWidth_->value();
    settings.percentageHeight = percentageHeight_->value();
    settings.absoluteWidth = absoluteWidth_->value();
    settings.absoluteHeight = absoluteHeight_->value();
    const bool isPixels = options.ResizeType == resize_type::Pixels;
    options.ResizeWidth = isPixels ? settings.absoluteWidth : settings.percentageWidth;
    options.ResizeHeight = isPixels ? settings.absoluteHeight : settings.percentageHeight;
}

}  // namespace zelto
