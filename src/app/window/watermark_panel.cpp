// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/watermark_panel.h"

#include "app/watermarks/watermark_controller.h"
#include "app/watermarks/watermark_delegate.h"
#include "app/watermarks/watermark_editors.h"
#include "app/window/window_actions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace zelto {

QLabel* makeHeading(const QString& text, QWidget* parent) {
    auto* heading = new QLabel(text, parent);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setContentsMargins(10, 8, 10, 6);
    return heading;
}

WatermarkPanel::WatermarkPanel(WatermarkController& watermarks, WatermarkEditors& editors,
                               WindowActions& actions, QWidget* parent)
    : QWidget(parent), list_(new QListView(this)) {
    list_->setModel(&watermarks.model());
    list_->setSelectionModel(&watermarks.selection());
    list_->setUniformItemSizes(true);
    list_->setItemDelegate(new WatermarkDelegate(list_));
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setFrameShape(QFrame::NoFrame);
    list_->setAccessibleName(tr("Watermarks"));
    list_->addAction(actions[Act::RemoveWatermark]);
    connect(list_, &QListView::doubleClicked, this,
            [&editors](const QModelIndex& index) { editors.WatermarkListDoubleClicked(index.row()); });

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
    for (const Act act :
         {Act::EditWatermark, Act::MoveUp, Act::MoveDown, Act::RemoveWatermark, Act::RemoveAllWatermarks}) {
        addButton(actions[act]);
    }

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeHeading(tr("Watermarks"), this));
    column->addWidget(list_);
    column->addLayout(buttons);
}

}  // namespace zelto
