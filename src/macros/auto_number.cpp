// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/auto_number.h"

#include "macros/text_numbers.h"

#include <algorithm>
#include <limits>

namespace zelto {
namespace {

constexpr qsizetype PrefixLength = 7;  // of "<<AUTO:"
constexpr QLatin1String Suffix(">>");

qint64 saturatedSum(qint64 a, qint64 b) {
    qint64 sum = 0;
    if (!__builtin_add_overflow(a, b, &sum)) return sum;
    return b < 0 ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
}

qint64 saturatedProduct(qint64 a, qint64 b) {
    qint64 product = 0;
    if (!__builtin_mul_overflow(a, b, &product)) return product;
    return (a < 0) != (b < 0) ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
}

}  // namespace

QString autoNumberField(const QString& typed) {
    return IntegerValue(typed) < 1 ? QStringLiteral("1") : typed;
}

QString GenerateAutoMacro(const AutoNumberFields& fields) {
    const qint64 digits = std::min<qint64>(IntegerValue(fields.digits), MaximumAutoDigits);
    const QString hashes(std::max<qint64>(digits - fields.start.size(), 0), QLatin1Char('#'));
    return QLatin1String("<<AUTO:") + hashes + fields.start + QLatin1Char('+') + fields.increment + Suffix;
}

QString autoMacroLabel(const QString& macro) {
    return QLatin1String("Macro Generated:") + macro;
}

QString ContinueLastNumber(bool on, qint64 lastAutoNumber) {
    return QString::number(on ? saturatedSum(lastAutoNumber, 1) : 1);
}

AutoNumber autoNumberAt(const QString& macro, qint64 row) {
    QString tail = Suffix;
    qint64 increment = 1;
    if (const qsizetype plus = macro.indexOf(u'+'); plus >= 0) {
        tail = macro.sliced(plus + 1).remove(u'+');
        increment = IntegerValue(QString(tail).remove(Suffix));
    }
    QString digits = macro.sliced(PrefixLength);
    if (!tail.isEmpty()) digits.remove(tail);
    digits.remove(u'+').replace(u'#', u'0');
    const qint64 number = saturatedSum(saturatedProduct(row, increment), IntegerValue(digits));
    return {number, AdjustLength(QString::number(number), digits.size())};
}

QString AdjustLength(QString text, qsizetype length) {
    if (text.size() < length) text.prepend(QString(length - text.size(), u'0'));
    return text;
}

}  // namespace zelto
