// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/text_start.h"

#include "persistence/color_text.h"
#include "platform/preferences.h"

#include <QCoreApplication>
#include <QFontInfo>

namespace zelto {
namespace {

constexpr std::int64_t StartPercent = 5;

// Keys of preference::LastTextStyle.
constexpr QLatin1String Family("Family");
constexpr QLatin1String Size("Size");
constexpr QLatin1String SizeFraction("SizeFraction");
constexpr QLatin1String IsRelative("IsRelative");
constexpr QLatin1String Side("Side");
constexpr QLatin1String TextColor("Color");

}  // namespace

void startText(Watermark& record) {
    const QVariantMap last = storedPreference(preference::LastTextStyle).value_or(QVariantMap());
    record.Text = QCoreApplication::translate("zelto::TextEditor", "Your text");
    record.FontFamily = last.value(Family, QFontInfo(QFont()).family()).toString();
    record.FontSize = last.value(Size, qint64{StartPercent}).toLongLong();
    if (last.contains(SizeFraction)) record.FontSizeFraction = last.value(SizeFraction).toFloat();
    record.IsRelative = last.value(IsRelative, true).toBool();
    record.FontRelativeSize = last.value(Side, QString(photo_side::Width)).toString();
    record.TextColor = colorFromString(last.value(TextColor).toString()).value_or(Color::white());
    record.ShadowColor = Color::black();
}

void rememberTextStyle(const Watermark& text) {
    QVariantMap style{{Family, text.FontFamily},
                      {Size, qint64{text.FontSize}},
                      {IsRelative, text.IsRelative},
                      {Side, text.FontRelativeSize},
                      {TextColor, exactColorText(text.TextColor.value_or(Color::black()))}};
    if (text.FontSizeFraction) style.insert(SizeFraction, *text.FontSizeFraction);
    setPreference(preference::LastTextStyle, style);
}

}  // namespace zelto
