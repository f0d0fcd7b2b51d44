// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/number_field.h"

#include "app/editors/controls/input_hint.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <cmath>

namespace zelto {

NumberField::NumberField(const NumberKind& kind, QWidget* parent)
    : QDoubleSpinBox(parent), hint_(new InputHint(this)) {
    setAccelerated(true);
    setFocusPolicy(Qt::StrongFocus);
    setKind(kind);
    connect(lineEdit(), &QLineEdit::textChanged, this, &NumberField::showProblem);
}

void NumberField::setKind(const NumberKind& kind) {
    if (suffix() == kind.unit && maximum() == kind.largest) return;
    const QSignalBlocker quiet(this);
    setDecimals(kind.decimals);
    setRange(kind.smallest, kind.largest);
    setSingleStep(kind.step);
    setSuffix(QString(kind.unit));
    range_ = tr("A number from %1 to %2").arg(textFromValue(kind.smallest), textFromValue(kind.largest));
}

void NumberField::load(double value) {
    if (std::abs(value - this->value()) < 0.5 * std::pow(0.1, decimals())) return;
    const QSignalBlocker quiet(this);
    setValue(value);
}

QString NumberField::problem() const {
    QString text = this->text();
    int position = 0;
    const bool isBegun = cleanText().isEmpty() || cleanText() == QLocale().negativeSign();
    return isBegun || validate(text, position) == QValidator::Acceptable ? QString() : range_;
}

QValidator::State NumberField::validate(QString& text, int& position) const {
    return std::max(QDoubleSpinBox::validate(text, position), QValidator::Intermediate);
}

QString NumberField::textFromValue(double value) const {
    QString text = QDoubleSpinBox::textFromValue(value);
    if (decimals() == 0) return text;
    while (text.endsWith(locale().zeroDigit())) text.chop(1);
    if (text.endsWith(locale().decimalPoint())) text.chop(1);
    return text;
}

void NumberField::fixup(QString& text) const {
    if (emptyValue_ && cleanText().isEmpty()) {
        text = textFromValue(*emptyValue_) + suffix();
    } else {
        QDoubleSpinBox::fixup(text);
    }
}

void NumberField::showProblem() {
    hint_->say(problem());
}

// Scrolling through a dialog changes no number it happens to pass.
void NumberField::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QDoubleSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

}  // namespace zelto
