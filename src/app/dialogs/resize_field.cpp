// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/resize_field.h"

#include <QRegularExpression>

#include <algorithm>

namespace zelto {
namespace {

constexpr int WholePercentage = 100;
constexpr int LargestPercentage = 10'000;
constexpr int LargestSide = 100'000;  // pixels; more than any photo is enlarged to

}  // namespace

ResizeField::ResizeField(Unit unit, const QString& name, QWidget* parent) : QSpinBox(parent), unit_(unit) {
    setAccessibleName(name);
    setToolTip(name);
    setSuffix(unit == Unit::PerCent ? tr(" %") : tr(" px"));
    setRange(0, unit == Unit::PerCent ? LargestPercentage : LargestSide);
    setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    setAlignment(Qt::AlignRight);
}

QString ResizeField::withoutUnit(QString text) const {
    if (text.endsWith(suffix())) text.chop(suffix().size());
    return text.trimmed();
}

QValidator::State ResizeField::validate(QString& text, int& position) const {
    const QString typed = withoutUnit(text);
    // What a number may begin with is left until more is typed.
    if (typed.isEmpty()) return QValidator::Acceptable;
    if (typed == QLatin1String("-") || typed == QLatin1String("+")) return QValidator::Intermediate;
    const QString number = QString::number(valueFromText(text));
    if (number == typed) return QValidator::Acceptable;
    text = number + suffix();
    position = std::min(position, static_cast<int>(number.size()));
    return QValidator::Acceptable;
}

int ResizeField::valueFromText(const QString& text) const {
    static const QRegularExpression wholeNumber(QStringLiteral("^[+-]?[0-9]+"));
    const QString digits = wholeNumber.match(withoutUnit(text)).captured();
    // More digits than a number holds mean the largest.
    bool fits = false;
    const qint64 value = digits.toLongLong(&fits);
    if (!fits) return digits.isEmpty() ? 0 : maximum();
    if (value < 0) return unit_ == Unit::PerCent ? WholePercentage : 0;
    return static_cast<int>(std::min<qint64>(value, maximum()));
}

QString ResizeField::textFromValue(int value) const {
    return value == 0 && unit_ == Unit::Pixels ? QString() : QString::number(value);
}

}  // namespace zelto
