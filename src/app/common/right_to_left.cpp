// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/right_to_left.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOptionButton>

namespace zelto {
namespace {

class WholeWords : public QProxyStyle {
  public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element != CE_PushButtonLabel || button == nullptr || button->text.isEmpty())
            return QProxyStyle::drawControl(element, option, painter, widget);
        QStyleOptionButton plain(*button);
        plain.icon = {};
        QProxyStyle::drawControl(element, &plain, painter, widget);
    }
};

}  // namespace

void keepButtonWordsWhole() {
    if (QApplication::isRightToLeft()) QApplication::setStyle(new WholeWords);
}

}  // namespace zelto
