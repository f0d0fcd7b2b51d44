// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/transparency_slider.h"

#include "render/opacity.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <cmath>

namespace zelto {
namespace {

constexpr NumberKind Percent{0, 100, 0, QLatin1String("%"), 5};

}  // namespace

int transparencyPercent(float transparency) {
    return static_cast<int>(std::lround((1.0 - opacityOf(transparency)) * 100.0));
}

float transparencyOf(int percent) {
    return static_cast<float>(100 - percent) / 100.0F;
}

TransparencySlider::TransparencySlider(QWidget* parent)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal, this)), field_(new NumberField(Percent, this)) {
    slider_->setRange(0, 100);
    slider_->setPageStep(10);
    slider_->setAccessibleName(tr("Transparency"));
    slider_->setMinimumWidth(120);
    field_->setAccessibleName(tr("Transparency in per cent"));
    setFocusProxy(slider_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider_, 1);
    row->addWidget(field_);
    connect(slider_, &QSlider::valueChanged, this, &TransparencySlider::choose);
    connect(field_, &NumberField::valueChanged, this,
            [this](double percent) { choose(static_cast<int>(std::lround(percent))); });
}

void TransparencySlider::load(float transparency) {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(transparencyPercent(transparency));
    field_->load(slider_->value());
}

void TransparencySlider::choose(int percent) {
    load(transparencyOf(percent));
    Q_EMIT chosen(transparencyOf(percent));
}

}  // namespace zelto
