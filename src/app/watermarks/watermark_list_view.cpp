// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_list_view.h"

#include "app/watermarks/watermark_controller.h"
#include "app/watermarks/watermark_delegate.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zelto {

WatermarkListView::WatermarkListView(WatermarkController& watermarks, QWidget* parent)
    : QListView(parent), watermarks_(watermarks) {
    setModel(&watermarks.model());
    setSelectionModel(&watermarks.selection());
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true);
    setItemDelegate(new WatermarkDelegate(this));
    // Enter and double clicks open the editor; a name is changed by its own action.
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Watermarks"));
}

void WatermarkListView::renameSelected() {
    const QModelIndex row = watermarks_.model().index(watermarks_.selectedRow());
    if (row.flags().testFlag(Qt::ItemIsEditable)) edit(row);
}

void WatermarkListView::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && state() != EditingState && watermarks_.selectedRow() >= 0) {
        Q_EMIT opened(watermarks_.selectedRow());
        return;
    }
    QListView::keyPressEvent(event);
}

void WatermarkListView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex row = indexAt(event->pos());
    const bool isOnEye = WatermarkDelegate::isOnEye(visualRect(row), layoutDirection(), event->pos());
    QListView::mouseDoubleClickEvent(event);
    if (row.isValid() && !isOnEye && event->button() == Qt::LeftButton) Q_EMIT opened(row.row());
}

// An empty list says what it is for.
void WatermarkListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (model()->rowCount() > 0) return;
    constexpr int Margin = 16;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, tr("No watermarks yet"));
}

// What is edited below stays in sight in a list that has become shorter.
void WatermarkListView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

}  // namespace zelto
