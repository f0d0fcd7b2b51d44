// SPDX-License-Identifier: GPL-3.0-or-later
// Paints a row of the photo list and takes clicks on its check box. Main thread only.
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

#include <functional>

namespace zelto {

class ThumbnailLoader;

class PhotoDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    // `toggled` is told the index whose check box was clicked; both outlive the delegate.
    PhotoDelegate(const ThumbnailLoader& thumbnails, std::function<void(const QModelIndex&)> toggled,
                  QObject* parent);

    static constexpr QSize ThumbnailSize{56, 42};  // device-independent pixels

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    // The check box of a row that is painted into `row`.
    static QRect checkBoxRect(const QRect& row, Qt::LayoutDirection direction);

  private:
    QString details(const QString& path, const QString& folder) const;
    void paintThumbnail(QPainter& painter, const QRect& place, const QString& path) const;

    const ThumbnailLoader& thumbnails_;
    std::function<void(const QModelIndex&)> toggled_;
    QIcon pictureIcon_;
    QIcon brokenIcon_;
    QIcon writtenIcon_;
    QIcon warnedIcon_;
    QIcon failedIcon_;
};

}  // namespace zelto
