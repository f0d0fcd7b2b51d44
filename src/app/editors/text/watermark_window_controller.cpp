// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/watermark_window_controller.h"

#include "app/editors/controls/position_group.h"
#include "app/editors/controls/rotation_control.h"
#include "app/editors/controls/transparency_slider.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace zelto {

QTabWidget* WatermarkWindowController::makePages() {
    auto* pages = new QTabWidget(this);
    pages->setObjectName(QStringLiteral("Pages"));
    return pages;
}

QWidget* WatermarkWindowController::makeLookPage(QWidget* look) {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addWidget(look, 1);
    auto* transparency = new TransparencySlider(page);
    transparency->setObjectName(QStringLiteral("Transparency"));
    binder().bind(transparency, &Watermark::Transparency);
    auto* form = new QFormLayout;
    addRow(*form, tr("Transparenc&y:"), transparency);
    column->addLayout(form);
    return page;
}

QWidget* WatermarkWindowController::makePlacePage() {
    auto* page = new QWidget(this);
    auto* turn = new QGroupBox(tr("Rotation"), page);
    auto* rotation = new RotationControl(turn);
    rotation->setObjectName(QStringLiteral("Rotation"));
    binder().bind(rotation, &Watermark::Rotation);
    (new QVBoxLayout(turn))->addWidget(rotation);
    auto* column = new QVBoxLayout(page);
    column->addWidget(turn);
    column->addWidget(new PositionGroup(binder(), PositionGroup::Tiling::Offered, page), 1);
    return page;
}

}  // namespace zelto
