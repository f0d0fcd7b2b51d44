// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/stack_head.h"

#include "app/common/icons.h"
#include "app/window/stack_keeper.h"
#include "app/window/window_actions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace zelto {

StackHead::StackHead(StackKeeper& keeper, WindowActions& actions, QWidget* parent)
    : QWidget(parent), keeper_(keeper), actions_(actions), name_(new QToolButton(this)) {
    name_->setObjectName(QStringLiteral("StackName"));
    name_->setAutoRaise(true);
    name_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    name_->setIcon(lineIcon(QLatin1String("stacks")));
    name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    connect(name_, &QToolButton::clicked, actions[Act::ChooseStack], &QAction::trigger);

    auto* save = new QToolButton(this);
    save->setDefaultAction(actions[Act::SaveSettings]);
    save->setAutoRaise(true);
    auto* more = new QToolButton(this);
    more->setObjectName(QStringLiteral("StackMenu"));
    more->setIcon(lineIcon(QLatin1String("more")));
    more->setAutoRaise(true);
    more->setPopupMode(QToolButton::InstantPopup);
    more->setToolTip(tr("More for this stack"));
    more->setAccessibleName(tr("More for this stack"));
    more->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    more->setMenu(
        actions.makeMenu({Act::SaveSettings, Act::SaveSettingsAs, Act::LoadAtStart, Act::Separator,
                          Act::ChooseStack, Act::OpenSettings, Act::Separator, Act::RemoveAllWatermarks},
                         this));

    auto* order = new QLabel(tr("Drawn from top to bottom"), this);
    order->setObjectName(QStringLiteral("DrawingOrder"));
    QFont small = order->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    order->setFont(small);
    order->setToolTip(tr("The last one lies on top of the others"));
    order->setContentsMargins(10, 0, 10, 4);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(4, 4, 6, 0);
    row->setSpacing(2);
    row->addWidget(name_, 1);
    row->addWidget(save);
    row->addWidget(more);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(order);
    connect(&keeper_, &StackKeeper::changed, this, &StackHead::follow);
    follow();
}

void StackHead::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    follow();
}

void StackHead::follow() {
    const QString name = keeper_.name().isEmpty() ? tr("Unnamed stack") : keeper_.name();
    const QString dot = keeper_.isChanged() ? QStringLiteral(" •") : QString();
    const int room =
        name_->width() - name_->iconSize().width() - 16 - name_->fontMetrics().horizontalAdvance(dot);
    // An ampersand would underline the letter behind it.
    const QString shown = name_->fontMetrics().elidedText(name, Qt::ElideRight, std::max(room, 40));
    name_->setText(QString(shown).replace(QLatin1Char('&'), QLatin1String("&&")) + dot);
    const QString state = keeper_.name().isEmpty() ? tr("This stack has not been saved under a name")
                          : keeper_.isChanged() ? tr("“%1” has been changed since it was saved").arg(name)
                          : keeper_.isLoadedAtStart() ? tr("“%1” is loaded when Zelto starts").arg(name)
                                                      : tr("“%1” is loaded").arg(name);
    name_->setToolTip(
        tr("%1\nClick for the saved stacks (%2)")
            .arg(state, actions_[Act::ChooseStack]->shortcut().toString(QKeySequence::NativeText)));
    name_->setAccessibleName(name);
    name_->setAccessibleDescription(state);
    actions_[Act::LoadAtStart]->setChecked(keeper_.isLoadedAtStart());
}

}  // namespace zelto
