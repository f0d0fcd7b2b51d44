// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_delegate.h"

#include "app/common/check_mark.h"
#include "app/common/icons.h"
#include "app/watermarks/watermark_list_model.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zelto {
namespace {

constexpr int RowHeight = 38;
constexpr int Margin = 10;
constexpr int IconSide = 22;
constexpr int WarningSide = 18;

}  // namespace

WatermarkDelegate::WatermarkDelegate(QObject* parent)
    : QStyledItemDelegate(parent), warningIcon_(colorIcon(QLatin1String("warning"))) {}

QSize WatermarkDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    return {120, std::max(RowHeight, option.fontMetrics.height() + Margin)};
}

QRect WatermarkDelegate::checkBoxRect(const QRect& row) {
    return {row.left() + Margin, row.top() + (row.height() - CheckBoxSide) / 2, CheckBoxSide, CheckBoxSide};
}

void WatermarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                              const QModelIndex& index) const {
    QStyleOptionViewItem option = given;
    option.index = index;
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);

    const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QRect box = checkBoxRect(option.rect);
    paintCheckBox(*painter, box, isOn, isSelected, option.palette);

    const QRect icon(box.right() + 1 + Margin, option.rect.top() + (option.rect.height() - IconSide) / 2,
                     IconSide, IconSide);
    const QIcon::Mode mode = !option.state.testFlag(QStyle::State_Enabled) || !isOn ? QIcon::Disabled
                             : isSelected                                           ? QIcon::Selected
                                                                                    : QIcon::Normal;
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, icon, Qt::AlignCenter, mode);

    QRect text(icon.right() + 1 + Margin, option.rect.top(), option.rect.right() - icon.right() - 2 * Margin,
               option.rect.height());
    if (!index.data(WatermarkListModel::WarningRole).toString().isEmpty()) {
        const QRect sign(text.right() - WarningSide,
                         option.rect.top() + (option.rect.height() - WarningSide) / 2, WarningSide,
                         WarningSide);
        warningIcon_.paint(painter, sign);
        text.setRight(sign.left() - Margin);
    }
    QColor color = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    if (!isOn) color.setAlphaF(0.55F);
    painter->setPen(color);
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, text.width()));
}

bool WatermarkDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                    const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto toggle = [&] {
        const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return true;
    };
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        return key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier && toggle();
    }
    const bool isClick =
        event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick;
    if (!isClick) return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QRect box = checkBoxRect(option.rect).adjusted(-Margin, -Margin, Margin / 2, Margin);
    if (mouse->button() != Qt::LeftButton || !box.contains(mouse->pos())) return false;
    return event->type() != QEvent::MouseButtonRelease || toggle();
}

}  // namespace zelto
