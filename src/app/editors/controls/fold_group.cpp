// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/fold_group.h"

#include "app/common/icons.h"
#include "platform/preferences.h"

#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QPolygonF>
#include <QVBoxLayout>

namespace zelto {
namespace {

// A tool button's own arrow stays on the left where the words begin on the right.
QIcon arrow(bool folded, Qt::LayoutDirection direction) {
    constexpr int Side = 32;
    QImage drawing(Side, Side, QImage::Format_ARGB32_Premultiplied);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.translate(Side / 2.0, Side / 2.0);
    if (folded) painter.rotate(direction == Qt::RightToLeft ? 90.0 : -90.0);
    painter.drawPolygon(QPolygonF({{-13.0, -6.0}, {13.0, -6.0}, {0.0, 8.0}}));
    painter.end();
    return lineIcon(drawing);
}

}  // namespace

FoldGroup::FoldGroup(const QString& name, const QString& title, AtFirst atFirst, QWidget* parent)
    : QWidget(parent), name_(name), atFirst_(atFirst), title_(new QToolButton(this)) {
    setObjectName(name + QLatin1String("Group"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    title_->setObjectName(name + QLatin1String("Title"));
    title_->setText(title);
    title_->setAutoRaise(true);
    title_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    title_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    title_->setFocusPolicy(Qt::StrongFocus);
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);
    title_->setIconSize({10, 10});
    title_->installEventFilter(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(title_);
    connect(title_, &QToolButton::clicked, this, [this] { setFolded(!isFolded_); });
    show(atFirst_ == AtFirst::Folded);
}

void FoldGroup::setContent(QWidget* content) {
    content_ = new QWidget(this);
    auto* inset = new QVBoxLayout(content_);
    inset->setContentsMargins(8, 4, 8, 10);
    inset->addWidget(content);
    layout()->addWidget(content_);
    show(isFolded());
}

void FoldGroup::setFolded(bool folded) {
    QVariantMap all = storedPreference(preference::FoldedGroups).value_or(QVariantMap());
    all.insert(name_, folded);
    setPreference(preference::FoldedGroups, all);
    show(folded);
}

void FoldGroup::show(bool folded) {
    isFolded_ = folded;
    title_->setIcon(arrow(folded, layoutDirection()));
    title_->setAccessibleDescription(folded ? tr("Folded") : tr("Unfolded"));
    if (content_ != nullptr) content_->setVisible(!folded);
}

// Another page may have folded the group of this name meanwhile.
void FoldGroup::showEvent(QShowEvent* event) {
    const QVariantMap all = storedPreference(preference::FoldedGroups).value_or(QVariantMap());
    show(all.value(name_, atFirst_ == AtFirst::Folded).toBool());
    QWidget::showEvent(event);
}

// As in trees: the arrow key against the direction of reading folds, the one along it unfolds.
bool FoldGroup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            setFolded(key == (isRightToLeft() ? Qt::Key_Right : Qt::Key_Left));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace zelto
