// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_delegate.h"

#include "app/common/icons.h"
#include "app/watermarks/watermark_list_model.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace zelto {
namespace {

constexpr int RowHeight = 38;
constexpr int Margin = 8;
constexpr int EyeSide = 18;
constexpr int WarningSide = 18;
constexpr double SecondLineSize = 0.85;  // of the font's
constexpr double OffOpacity = 0.5;

// The parts of a row, in the direction of reading.
struct RowPlaces {
    QRect eye;
    QRect portrait;
    QRect text;
    QRect sign;
};

RowPlaces placesIn(const QRect& row, bool hasSign, Qt::LayoutDirection direction) {
    RowPlaces at;
    const auto middle = [&row](int left, int side) {
        return QRect(left, row.top() + (row.height() - side) / 2, side, side);
    };
    at.eye = middle(row.left() + Margin, EyeSide);
    at.portrait = middle(at.eye.right() + 1 + Margin, WatermarkDelegate::PortraitSide);
    at.sign = middle(row.right() - Margin - WarningSide, WarningSide);
    const int left = at.portrait.right() + 1 + Margin;
    const int right = hasSign ? at.sign.left() - Margin : row.right() - Margin;
    at.text = QRect(left, row.top(), right - left, row.height());
    for (QRect* part : {&at.eye, &at.portrait, &at.text, &at.sign})
        *part = QStyle::visualRect(direction, row, *part);
    return at;
}

QFont secondLineFont(QFont font) {
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * SecondLineSize));
    } else {
        font.setPointSizeF(font.pointSizeF() * SecondLineSize);
    }
    return font;
}

}  // namespace

WatermarkDelegate::WatermarkDelegate(QObject* parent)
    : QStyledItemDelegate(parent),
      warningIcon_(colorIcon(QLatin1String("warning"))),
      openEye_(lineIcon(QLatin1String("eye"))),
      closedEye_(lineIcon(QLatin1String("eye-off"))) {}

QSize WatermarkDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    const int lines = option.fontMetrics.height() + QFontMetrics(secondLineFont(option.font)).height();
    return {120, std::max(RowHeight, lines + Margin / 2)};
}

QRect WatermarkDelegate::eyeRect(const QRect& row, Qt::LayoutDirection direction) {
    return placesIn(row, false, direction).eye;
}

bool WatermarkDelegate::isOnEye(const QRect& row, Qt::LayoutDirection direction, QPoint point) {
    constexpr int Around = 6;
    return eyeRect(row, direction).adjusted(-Around, -Around, Around, Around).contains(point);
}

void WatermarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                              const QModelIndex& index) const {
    QStyleOptionViewItem option = given;
    option.index = index;
    const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);

    const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool warns = !index.data(WatermarkListModel::WarningRole).toString().isEmpty();
    const RowPlaces at = placesIn(option.rect, warns, option.direction);
    const QIcon::Mode mode = !option.state.testFlag(QStyle::State_Enabled) ? QIcon::Disabled
                             : isSelected                                  ? QIcon::Selected
                                                                           : QIcon::Normal;
    painter->save();
    if (!isOn) painter->setOpacity(OffOpacity);
    (isOn ? openEye_ : closedEye_).paint(painter, at.eye, Qt::AlignCenter, mode);
    const auto portrait = index.data(WatermarkListModel::PortraitRole).value<QImage>();
    if (portrait.isNull()) {
        index.data(Qt::DecorationRole).value<QIcon>().paint(painter, at.portrait, Qt::AlignCenter, mode);
    } else {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(at.portrait, portrait);
    }

    const QPalette::ColorGroup group = !option.state.testFlag(QStyle::State_Enabled) ? QPalette::Disabled
                                       : option.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                                                     : QPalette::Inactive;
    QColor color = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QString name = index.data(WatermarkListModel::NameRole).toString();
    const QString label = index.data().toString();
    const QFont small = secondLineFont(option.font);
    const QFontMetrics smallMetrics(small);
    const bool hasSecondLine = label != name && !label.isEmpty();
    const int lines = option.fontMetrics.height() + (hasSecondLine ? smallMetrics.height() : 0);
    QRect line(at.text.left(), at.text.top() + (at.text.height() - lines) / 2, at.text.width(),
               option.fontMetrics.height());
    painter->setPen(color);
    painter->setFont(option.font);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(name, Qt::ElideRight, line.width()));
    if (hasSecondLine) {
        line.translate(0, line.height());
        line.setHeight(smallMetrics.height());
        color.setAlphaF(0.65F);
        painter->setPen(color);
        painter->setFont(small);
        // What a record holds, such as a path, reads from left to right everywhere.
        const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
        painter->drawText(line, side | Qt::AlignVCenter | Qt::TextForceLeftToRight,
                          smallMetrics.elidedText(label, Qt::ElideMiddle, line.width()));
    }
    painter->restore();
    if (warns) warningIcon_.paint(painter, at.sign);
    if (option.state.testFlag(QStyle::State_HasFocus) &&
        option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.backgroundColor = option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
        style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    }
}

void WatermarkDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                             const QModelIndex& /*index*/) const {
    QRect place = placesIn(option.rect, false, option.direction).text;
    const int height = std::min(place.height() - 2, editor->sizeHint().height());
    place.setTop(place.top() + (place.height() - height) / 2);
    place.setHeight(height);
    editor->setGeometry(place.adjusted(-Margin / 2, 0, 0, 0));
}

bool WatermarkDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                    const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto type = event->type();
    const bool isButton = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                          type == QEvent::MouseButtonDblClick;
    if (!isButton) return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton || !isOnEye(option.rect, option.direction, mouse->pos()))
        return false;
    if (type != QEvent::MouseButtonRelease) return true;
    const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

}  // namespace zelto
