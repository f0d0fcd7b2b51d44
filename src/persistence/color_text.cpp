// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/color_text.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

QString colorText(const Color& color, char format, int precision) {
    QStringList tokens{QString(CalibratedRgbColorSpace)};
    for (const float component : {color.Red, color.Green, color.Blue, color.Alpha}) {
        tokens.append(QString::number(static_cast<double>(component), format, precision));
    }
    return tokens.join(u' ');
}

float component(const QString& token) {
    bool isNumber = false;
    const float value = token.toFloat(&isNumber);
    return isNumber && !std::isnan(value) ? std::clamp(value, 0.0F, 1.0F) : 0.0F;
}

// The number of digits is made 8 (RRGGBBAA); only texts of more than eight lose any.
QString eightDigits(QString digits) {
    if (digits.size() < 3) digits = digits.rightJustified(3, u'0');
    if (digits.size() <= 4) {
        QString doubled;
        for (const QChar digit : std::as_const(digits)) doubled.append(digit).append(digit);
        digits = doubled;
    }
    if (digits.size() == 5 || digits.size() == 7) digits.prepend(u'0');
    if (digits.size() == 6) digits.append(QStringLiteral("FF"));
    return digits.right(8);
}

}  // namespace

QString stringRepresentationofColor(const Color& color) {
    return colorText(color, 'f', 6);
}

QString exactColorText(const Color& color) {
    return colorText(color, 'g', 9);
}

std::optional<Color> colorFromString(const QString& text, const QString& colorSpace) {
    Q_UNUSED(colorSpace)
    const QStringList tokens = text.split(u' ');
    if (tokens.size() < 5) return std::nullopt;
    return Color{component(tokens[1]), component(tokens[2]), component(tokens[3]), component(tokens[4])};
}

Color colorWithCSS(const QString& text) {
    const QString digits = eightDigits(text.startsWith(u'#') ? text.mid(1) : text);
    const bool isHex = std::all_of(digits.cbegin(), digits.cend(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    });
    if (!isHex) return Color::black();
    const auto pair = [&digits](qsizetype at) {
        return static_cast<float>(digits.mid(at, 2).toInt(nullptr, 16) / 255.0);
    };
    return {pair(0), pair(2), pair(4), pair(6)};
}

}  // namespace zelto
