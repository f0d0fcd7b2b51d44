// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/photo_panel.h"

#include "app/common/icons.h"
#include "app/photos/image_list_controller.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace zelto {

PhotoPanel::PhotoPanel(ImageListController& photos, const QList<QAction*>& sortings, QWidget* parent)
    : QWidget(parent),
      photos_(photos),
      list_(new PhotoListView(photos, this)),
      filter_(new PhotoFilterBox(photos, this)),
      find_(new QLineEdit(this)) {
    auto* title = new QLabel(tr("Photos"), this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);

    auto* sort = new QToolButton(this);
    sort->setIcon(lineIcon(QLatin1String("sort")));
    sort->setAutoRaise(true);
    sort->setPopupMode(QToolButton::InstantPopup);
    sort->setToolTip(tr("Sort the photos: the run and its numbers follow this order"));
    sort->setAccessibleName(tr("Sort Photos"));
    auto* orders = new QMenu(sort);
    orders->addActions(sortings);
    sort->setMenu(orders);
    sort->setFocusPolicy(Qt::TabFocus);

    find_->setPlaceholderText(tr("Find by name"));
    find_->setAccessibleName(tr("Find photos by name"));
    find_->setToolTip(tr("Shows only photos with this in their names (Ctrl+F)"));
    find_->setClearButtonEnabled(true);
    find_->addAction(lineIcon(QLatin1String("find")), QLineEdit::LeadingPosition);
    find_->installEventFilter(this);
    connect(find_, &QLineEdit::textChanged, &photos_, &ImageListController::findPhotos);
    connect(&photos_, &ImageListController::filtered, this, [this] {
        if (find_->text() != photos_.soughtName()) find_->setText(photos_.soughtName());
    });

    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(10, 4, 6, 2);
    heading->addWidget(title, 1);
    heading->addWidget(filter_);
    heading->addWidget(sort);
    auto* field = new QHBoxLayout;
    field->setContentsMargins(8, 0, 8, 6);
    field->addWidget(find_);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(heading);
    rows->addLayout(field);
    rows->addWidget(list_);
    setTabOrder(filter_, sort);
    setTabOrder(sort, find_);
    setTabOrder(find_, list_);
}

void PhotoPanel::find() {
    find_->setFocus(Qt::ShortcutFocusReason);
    find_->selectAll();
}

void PhotoPanel::setReadOnly(bool readOnly) {
    list_->setReadOnly(readOnly);
    filter_->setEnabled(!readOnly);
    find_->setEnabled(!readOnly);
}

// Down and Enter go on to the photos that were found, Escape back to all.
bool PhotoPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != find_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            find_->clear();
            [[fallthrough]];
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            list_->setFocus();
            return true;
        default:
            return false;
    }
}

}  // namespace zelto
