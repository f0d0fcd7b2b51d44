// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace zelto {

ElidedLabel::ElidedLabel(QWidget* parent, Qt::TextElideMode cut) : QWidget(parent), cut_(cut) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setText(const QString& text) {
    text_ = text;
    setToolTip(text);
    setAccessibleName(text);
    update();
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Qt::Alignment start = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    style()->drawItemText(&painter, rect(), static_cast<int>(start | Qt::AlignVCenter), palette(),
                          isEnabled(), fontMetrics().elidedText(text_, cut_, width()), foregroundRole());
}

}  // namespace zelto
