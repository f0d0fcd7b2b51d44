// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/empty_state.h"

#include "app/common/icons.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zelto {
namespace {

// A button that does what an action does and can be done when that can.
QPushButton* makeButton(QAction* action, QWidget* parent) {
    auto* button = new QPushButton(action->icon(), QString(action->text()).remove(QLatin1Char('&')), parent);
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    const auto follow = [button, action] { button->setEnabled(action->isEnabled()); };
    QObject::connect(action, &QAction::changed, button, follow);
    follow();
    return button;
}

}  // namespace

EmptyState::EmptyState(QAction* addPhotos, QAction* addFolder, QWidget* parent) : QWidget(parent) {
    auto* picture = new QLabel(this);
    constexpr int IconSide = 72;
    picture->setPixmap(lineIcon(QLatin1String("image"))
                           .pixmap(QSize(IconSide, IconSide), devicePixelRatioF(), QIcon::Disabled));
    picture->setAlignment(Qt::AlignCenter);

    auto* title = new QLabel(tr("Drop photos here"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    large.setBold(true);
    title->setFont(large);
    title->setAlignment(Qt::AlignCenter);

    auto* text = new QLabel(
        tr("Add the photos to be watermarked, compose your watermarks at the right, then press Start."),
        this);
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(makeButton(addPhotos, this));
    buttons->addWidget(makeButton(addFolder, this));
    buttons->addStretch();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 32);
    column->setSpacing(12);
    column->addStretch();
    column->addWidget(picture);
    column->addWidget(title);
    column->addWidget(text);
    column->addSpacing(8);
    column->addLayout(buttons);
    column->addStretch();
}

}  // namespace zelto
