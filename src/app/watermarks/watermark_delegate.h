// SPDX-License-Identifier: GPL-3.0-or-later
// Paints a row of the watermark list: an eye, open or closed, a picture of the mark, its name with what the record holds
// below it where that reads differently, and a sign where it draws nothing. Takes clicks on the eye, and the field for
// the name. Main thread only.
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

namespace zelto {

class WatermarkDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr int PortraitSide = 24;

    explicit WatermarkDelegate(QObject* parent);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    // The eye of a row that is painted into `row`, and whether a click at `point` is meant for it.
    static QRect eyeRect(const QRect& row, Qt::LayoutDirection direction = Qt::LeftToRight);
    static bool isOnEye(const QRect& row, Qt::LayoutDirection direction, QPoint point);

  private:
    QIcon warningIcon_;
    QIcon openEye_;
    QIcon closedEye_;
};

}  // namespace zelto
