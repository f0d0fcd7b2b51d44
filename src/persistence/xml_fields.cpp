// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/xml_fields.h"

#include "persistence/color_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zelto {
namespace {

constexpr qint64 MaximumLength = 1'000'000'000;

}  // namespace

QString toText(bool value) {
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

QString toText(std::int32_t value) {
    return QString::number(value);
}

QString toText(std::int64_t value) {
    return QString::number(value);
}

QString toText(std::uint64_t value) {
    return QString::number(value);
}

QString toText(float value) {
    return QString::number(static_cast<double>(value), 'f', 6);
}

QString toText(const QString& value) {
    return value;
}

QString toText(const QByteArray& value) {
    return QString::fromLatin1(value.toBase64());
}

QString toText(const std::optional<Color>& value) {
    return value ? exactColorText(*value) : QString();
}

void fromText(const QString& text, bool& value) {
    value = toBool(text, value);
}

void fromText(const QString& text, std::int32_t& value) {
    using Limits = std::numeric_limits<std::int32_t>;
    value =
        static_cast<std::int32_t>(std::clamp<qint64>(toInteger(text, value), Limits::min(), Limits::max()));
}

void fromText(const QString& text, std::int64_t& value) {
    value = std::clamp<qint64>(toInteger(text, value), -MaximumLength, MaximumLength);
}

void fromText(const QString& text, std::uint64_t& value) {
    const qint64 number = toInteger(text, static_cast<qint64>(value));
    if (number >= 0) value = static_cast<std::uint64_t>(number);
}

void fromText(const QString& text, float& value) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (std::isnan(number) || (!isNumber && !std::isinf(number))) return;
    constexpr auto Limit = static_cast<double>(MaximumLength);
    value = static_cast<float>(std::clamp(number, -Limit, Limit));
}

void fromText(const QString& text, std::optional<float>& value) {
    float number = std::numeric_limits<float>::quiet_NaN();
    fromText(text, number);
    if (!std::isnan(number)) value = number;
}

void fromText(const QString& text, QString& value) {
    value = text;
}

void fromText(const QString& text, QByteArray& value) {
    value = QByteArray::fromBase64(text.toLatin1());
}

void fromText(const QString& text, std::optional<Color>& value) {
    const QString color = text.trimmed();
    value.reset();  // an empty text is how the absence of a colour is stored
    if (!color.isEmpty()) value = colorFromString(color).value_or(colorWithCSS(color));
}

}  // namespace zelto
