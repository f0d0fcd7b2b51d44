// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/transparency_slider.h"

#include "app/editors/controls/position_rules.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

namespace zelto {

TransparencySlider::TransparencySlider(QWidget* parent)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal, this)), label_(new QLabel(this)) {
    slider_->setRange(0, 100);
    slider_->setPageStep(10);
    slider_->setAccessibleName(tr("Transparency"));
    slider_->setMinimumWidth(120);
    setFocusProxy(slider_);
    label_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label_->setMinimumWidth(label_->fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider_, 1);
    row->addWidget(label_);
    showPercent(0);
    connect(slider_, &QSlider::valueChanged, this, [this](int percent) {
        showPercent(percent);
        Q_EMIT transparencyChosen(transparencyOf(percent));
    });
}

void TransparencySlider::load(float transparency) {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(transparencyPercent(transparency));
    showPercent(slider_->value());
}

void TransparencySlider::showPercent(int percent) {
    label_->setText(QString::asprintf("%ld%%", static_cast<long>(percent)));
}

}  // namespace zelto
