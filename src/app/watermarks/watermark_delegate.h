// SPDX-License-Identifier: GPL-3.0-or-later
// Paints a row of the watermark list and takes clicks on its check box, and the space bar. Main thread only.
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

namespace zelto {

class WatermarkDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit WatermarkDelegate(QObject* parent);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    // The check box of a row that is painted into `row`.
    static QRect checkBoxRect(const QRect& row);

  private:
    QIcon warningIcon_;
};

}  // namespace zelto
