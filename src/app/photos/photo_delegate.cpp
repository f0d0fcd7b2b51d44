// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/photo_delegate.h"

#include "app/common/check_mark.h"
#include "app/common/icons.h"
#include "app/photos/photo_list_model.h"
#include "app/photos/thumbnail_loader.h"
#include "platform/path_parts.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace zelto {
namespace {

constexpr int Margin = 8;
constexpr int StatusSide = 18;

// The parts of a row, in the order of reading.
struct RowPlaces {
    QRect check;
    QRect thumbnail;
    QRect name;
    QRect details;
    QRect status;
};

RowPlaces placesIn(const QRect& row, const QFontMetrics& metrics, Qt::LayoutDirection direction) {
    RowPlaces at;
    const auto middle = [&row](int left, QSize size) {
        return QRect(QPoint(left, row.top() + (row.height() - size.height()) / 2), size);
    };
    at.check = middle(row.left() + Margin, {CheckBoxSide, CheckBoxSide});
    at.thumbnail = middle(at.check.right() + 1 + Margin, PhotoDelegate::ThumbnailSize);
    at.status = middle(row.right() - Margin - StatusSide, {StatusSide, StatusSide});
    const int left = at.thumbnail.right() + 1 + Margin;
    const int width = at.status.left() - Margin - left;
    const int lines = 2 * metrics.height();
    at.name = QRect(left, row.top() + (row.height() - lines) / 2, width, metrics.height());
    at.details = at.name.translated(0, metrics.height());
    for (QRect* part : {&at.check, &at.thumbnail, &at.status, &at.name, &at.details})
        *part = QStyle::visualRect(direction, row, *part);
    return at;
}

}  // namespace

PhotoDelegate::PhotoDelegate(const ThumbnailLoader& thumbnails,
                             std::function<void(const QModelIndex&)> toggled, QObject* parent)
    : QStyledItemDelegate(parent),
      thumbnails_(thumbnails),
      toggled_(std::move(toggled)),
      pictureIcon_(lineIcon(QLatin1String("image"))),
      brokenIcon_(lineIcon(QLatin1String("broken"))),
      writtenIcon_(colorIcon(QLatin1String("written"))),
      warnedIcon_(colorIcon(QLatin1String("warning"))),
      failedIcon_(colorIcon(QLatin1String("failed"))) {}

QSize PhotoDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    return {200, std::max(ThumbnailSize.height() + Margin, 2 * option.fontMetrics.height() + Margin)};
}

QRect PhotoDelegate::checkBoxRect(const QRect& row, Qt::LayoutDirection direction) {
    return placesIn(row, QFontMetrics(QFont()), direction).check;
}

void PhotoDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                          const QModelIndex& index) const {
    QStyleOptionViewItem option = given;
    option.index = index;
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    const RowPlaces at = placesIn(option.rect, option.fontMetrics, option.direction);
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);

    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    paintCheckBox(*painter, at.check, isChecked, isSelected, option.palette);

    const QString path = index.data(PhotoListModel::PathRole).toString();
    paintThumbnail(*painter, at.thumbnail, path);

    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    QColor color = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    painter->setPen(color);
    // Names and sizes read from left to right wherever they stand.
    painter->setLayoutDirection(Qt::LeftToRight);
    const auto drawLine = [&](const QRect& place, const QString& text, Qt::TextElideMode shortened) {
        painter->drawText(place, QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter,
                          option.fontMetrics.elidedText(text, shortened, place.width()));
    };
    drawLine(at.name, lastPathComponent(path), Qt::ElideMiddle);
    color.setAlphaF(0.7F);
    painter->setPen(color);
    drawLine(at.details, details(path, index.data(PhotoListModel::FolderRole).toString()), Qt::ElideRight);
    if (option.state.testFlag(QStyle::State_HasFocus))
        paintFocus(*painter, option.rect, isSelected, option.palette);

    switch (static_cast<PhotoStatus>(index.data(PhotoListModel::StatusRole).toInt())) {
        case PhotoStatus::Written:
            (index.data(PhotoListModel::WarningsRole).toStringList().isEmpty() ? writtenIcon_ : warnedIcon_)
                .paint(painter, at.status);
            break;
        case PhotoStatus::Failed:
            failedIcon_.paint(painter, at.status);
            break;
        case PhotoStatus::NotProcessed:
            break;
    }
}

// What is special about it, "6000 × 4000", and the folder where that tells photos apart: what matters most comes first,
// as the list may be too narrow for all of it.
QString PhotoDelegate::details(const QString& path, const QString& folder) const {
    QStringList parts;
    if (thumbnails_.isRawPreview(path)) parts.append(tr("preview of a raw file"));
    const QSize size = thumbnails_.photoSize(path);
    if (size.isValid()) parts.append(QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
    if (!folder.isEmpty()) parts.append(folder);
    return parts.join(QStringLiteral(" · "));
}

void PhotoDelegate::paintThumbnail(QPainter& painter, const QRect& place, const QString& path) const {
    const QImage picture = thumbnails_.thumbnail(path);
    if (picture.isNull()) {
        const QRect icon(place.center() - QPoint(11, 11), QSize(24, 24));
        (thumbnails_.isBroken(path) ? brokenIcon_ : pictureIcon_)
            .paint(&painter, icon, Qt::AlignCenter, QIcon::Disabled);
        return;
    }
    const double ratio = painter.device()->devicePixelRatioF();
    const QSizeF size = QSizeF(picture.size()) / ratio;
    const QPointF corner = QRectF(place).center() - QPointF(size.width(), size.height()) / 2.0;
    painter.drawImage(QRectF(corner, size), picture);
}

bool PhotoDelegate::editorEvent(QEvent* event, QAbstractItemModel* /*model*/,
                                const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease &&
        type != QEvent::MouseButtonDblClick) {
        return false;
    }
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QRect box = checkBoxRect(option.rect, option.direction);
    if (mouse->button() != Qt::LeftButton ||
        !box.adjusted(-Margin / 2, -Margin, Margin / 2, Margin).contains(mouse->pos())) {
        return false;
    }
    if (type == QEvent::MouseButtonRelease) toggled_(index);
    return true;
}

}  // namespace zelto
