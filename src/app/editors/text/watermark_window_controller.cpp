// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/watermark_window_controller.h"

#include "app/editors/controls/position_group.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/transparency_slider.h"

namespace zelto {

void WatermarkWindowController::addLook(const std::function<QWidget*(QWidget* parent)>& makeLook) {
    FoldGroup& group = addGroup(QStringLiteral("Look"), tr("Look"));
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeLook(content));
    auto* transparency = new TransparencySlider(content);
    transparency->setObjectName(QStringLiteral("Transparency"));
    binder().bind(transparency, &Watermark::Transparency);
    auto* form = new QFormLayout;
    addRow(*form, tr("Transparency:"), transparency);
    column->addLayout(form);
    group.setContent(content);
}

void WatermarkWindowController::addPlaceAndTiling() {
    FoldGroup& group = addGroup(QStringLiteral("Place"), tr("Place"));
    auto* place = new QWidget(this);
    auto* position = new PositionGroup(binder(), place);
    auto* rotation = new RotationControl(place);
    rotation->setObjectName(QStringLiteral("Rotation"));
    binder().bind(rotation, &Watermark::Rotation);
    auto* column = new QVBoxLayout(place);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(position);
    column->addWidget(rotation);
    group.setContent(place);
    FoldGroup& tiling = addGroup(QStringLiteral("Tiling"), tr("Tiling"));
    tiling.setContent(position->makeTiling());
}

}  // namespace zelto
