// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/empty_state.h"

#include "app/common/icon_label.h"
#include "app/window/stack_gallery.h"

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
    button->setAutoDefault(true);  // Enter presses it, as Space does
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    const auto follow = [button, action] { button->setEnabled(action->isEnabled()); };
    QObject::connect(action, &QAction::changed, button, follow);
    follow();
    return button;
}

QLabel* makeHeading(const QString& text, double size, QWidget* parent) {
    auto* heading = new QLabel(text, parent);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(true);
    heading->setFont(font);
    heading->setAlignment(Qt::AlignCenter);
    return heading;
}

QLabel* makeText(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

}  // namespace

EmptyState::EmptyState(QAction* addPhotos, QAction* addFolder,
                       const std::function<void(int place)>& addReadyMade, QWidget* parent)
    : QWidget(parent), tipLine_(new QWidget(this)), tip_(new QLabel(this)), nextTip_(new QPushButton(this)) {
    constexpr int IconSide = 56;
    auto* picture = new IconLabel(QLatin1String("image"), IconSide, this, QIcon::Disabled);
    picture->setAlignment(Qt::AlignCenter);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    QPushButton* add = makeButton(addPhotos, this);
    setFocusProxy(add);
    buttons->addWidget(add);
    buttons->addWidget(makeButton(addFolder, this));
    buttons->addStretch();

    constexpr QSize PictureSize(132, 88);
    constexpr int Columns = 4;
    auto* readyMade = new QHBoxLayout;
    readyMade->addStretch();
    readyMade->addWidget(makeReadyMadeButtons(Columns, PictureSize, addReadyMade, this));
    readyMade->addStretch();

    auto* tipRow = new QHBoxLayout(tipLine_);
    constexpr int TipSide = 20;
    auto* tipIcon = new IconLabel(QLatin1String("tips"), TipSide, tipLine_);
    tip_->setObjectName(QStringLiteral("Tip"));
    tip_->setWordWrap(true);
    tip_->setAccessibleName(tr("Tip"));
    nextTip_->setText(tr("&Next Tip"));
    nextTip_->setFlat(true);
    tipRow->addWidget(tipIcon);
    tipRow->addWidget(tip_, 1);
    tipRow->addWidget(nextTip_);
    tipLine_->hide();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 16, 24, 12);
    column->setSpacing(8);
    column->addStretch(2);
    column->addWidget(picture);
    column->addWidget(makeHeading(tr("Drop photos here"), 1.7, this));
    column->addWidget(
        makeText(tr("Add the photos to be watermarked, compose your watermarks at the right, then press "
                    "Start."),
                 this));
    column->addLayout(buttons);
    column->addSpacing(24);
    column->addWidget(makeHeading(tr("or begin with the watermarks"), 1.2, this));
    column->addWidget(makeText(tr("A sample photo shows them until you add your own."), this));
    column->addLayout(readyMade);
    column->addStretch(3);
    column->addWidget(tipLine_);
}

void EmptyState::showTip(const QString& tip, const std::function<QString()>& next) {
    tip_->setText(tip);
    tipLine_->setVisible(!tip.isEmpty());
    nextTip_->disconnect(this);
    connect(nextTip_, &QPushButton::clicked, this, [this, next] { tip_->setText(next()); });
}

QWidget* makeSampleBar(QAction* addPhotos, QWidget* parent) {
    auto* bar = new QFrame(parent);
    bar->setObjectName(QStringLiteral("SampleBar"));
    bar->setBackgroundRole(QPalette::AlternateBase);
    bar->setAutoFillBackground(true);
    auto* text = new QLabel(EmptyState::tr("This is a sample photo. Drop your own anywhere."), bar);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(10, 4, 8, 4);
    text->setWordWrap(true);
    row->addWidget(text, 1);
    row->addWidget(makeButton(addPhotos, bar));
    return bar;
}

}  // namespace zelto
