// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/text_numbers.h"

#include <charconv>
#include <limits>

namespace zelto {
namespace {

QStringView withoutLeadingBlanks(QStringView text) {
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace()) ++start;
    return text.sliced(start);
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

qint64 IntegerValue(QStringView text) {
    text = withoutLeadingBlanks(text);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) text = text.sliced(1);
    // Counted downwards, since the negative numbers reach one further.
    qint64 value = 0;
    for (const QChar c : text) {
        if (!isDigit(c)) break;
        const int digit = c.unicode() - u'0';
        if (__builtin_mul_overflow(value, 10, &value) || __builtin_sub_overflow(value, digit, &value)) {
            value = std::numeric_limits<qint64>::min();
            break;
        }
    }
    if (negative) return value;
    return value == std::numeric_limits<qint64>::min() ? std::numeric_limits<qint64>::max() : -value;
}

double DoubleValue(QStringView text) {
    text = withoutLeadingBlanks(text);
    if (text.startsWith(u'+')) text = text.sliced(1);
    const QStringView unsignedText = text.startsWith(u'-') ? text.sliced(1) : text;
    // from_chars would read "inf" and "nan" too.
    if (unsignedText.isEmpty() || !(isDigit(unsignedText.front()) || unsignedText.front() == u'.')) return 0;
    const QByteArray characters = text.toLatin1();
    double value = 0;
    std::from_chars(characters.begin(), characters.end(), value);
    return value;
}

QString NumberText(double value) {
    return QString::number(value, 'g', 16);
}

}  // namespace zelto
