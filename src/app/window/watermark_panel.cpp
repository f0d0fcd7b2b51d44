// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/watermark_panel.h"

#include "app/watermarks/watermark_controller.h"
#include "app/watermarks/watermark_editors.h"
#include "app/window/photo_strip.h"
#include "app/window/stack_gallery.h"
#include "app/window/stack_head.h"
#include "app/window/window_actions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace zelto {
namespace {

// Actions whose keys belong to the list that has the focus.
constexpr Act ListActs[] = {Act::RemoveWatermark, Act::Cut, Act::Copy, Act::ToggleWatermark};

}  // namespace

QLabel* makeHeading(const QString& text, QWidget* parent) {
    auto* heading = new QLabel(text, parent);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setContentsMargins(10, 8, 10, 6);
    return heading;
}

WatermarkPanel::WatermarkPanel(WatermarkController& watermarks, WatermarkEditors& editors,
                               WindowActions& actions, StackKeeper& keeper, QWidget* parent)
    : QWidget(parent),
      head_(new StackHead(keeper, actions, this)),
      list_(new WatermarkListView(watermarks, this)),
      readyMade_(makeReadyMadeButtons(
          2, QSize(108, 72), [&watermarks](int place) { watermarks.addReadyMade(place); },
          list_->viewport())) {
    auto* room = new QVBoxLayout(list_->viewport());
    room->setContentsMargins(8, 38, 8, 2);  // below the words of the empty list
    room->addWidget(readyMade_);
    room->addStretch(1);
    readyMade_->hide();
    for (const Act act : ListActs) list_->addAction(actions[act]);
    connect(list_, &WatermarkListView::opened, this,
            [&editors](int row) { editors.WatermarkListDoubleClicked(row); });

    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(6, 4, 6, 6);
    buttons->setSpacing(2);
    const auto addButton = [&](QAction* action) {
        auto* button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setAccessibleName(action->toolTip());
        buttons->addWidget(button);
        return button;
    };
    QMenu* menu = actions.addMenu();
    QToolButton* add = addButton(menu->menuAction());
    add->setObjectName(QStringLiteral("AddWatermark"));
    add->setText(tr("Add"));
    add->setToolTip(tr("Add a watermark, a filter, a border or copyright data"));
    add->setAccessibleName(tr("Add Watermark"));
    add->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    add->setPopupMode(QToolButton::InstantPopup);
    buttons->addStretch();
    for (const Act act : {Act::DuplicateWatermark, Act::MoveUp, Act::MoveDown, Act::RemoveWatermark}) {
        addButton(actions[act]);
    }

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(head_);
    column->addWidget(list_, 1);
    column->addLayout(buttons);
    column->addWidget(new PhotoStrip(watermarks, actions, this));
}

void WatermarkPanel::offerReadyMade(bool on) {
    readyMade_->setVisible(on);
}

}  // namespace zelto
