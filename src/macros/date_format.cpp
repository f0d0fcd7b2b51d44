// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/date_format.h"

#include "platform/dates.h"

namespace zelto {
namespace {

struct Step {
    QLatin1String from;
    QLatin1String to;
};

// Upper case is what is still to be translated: the two-letter tokens rest in lower case while the steps of
// their single letters run.
constexpr Step Steps[] = {
    {QLatin1String("Y"), QLatin1String("yyyy")},  {QLatin1String("MM"), QLatin1String("mn")},
    {QLatin1String("M"), QLatin1String("MM")},    {QLatin1String("mn"), QLatin1String("MMMM")},
    {QLatin1String("DD"), QLatin1String("dn")},   {QLatin1String("D"), QLatin1String("dd")},
    {QLatin1String("dn"), QLatin1String("EEEE")}, {QLatin1String("N"), QLatin1String("mm")},
    {QLatin1String("S"), QLatin1String("ss")},    {QLatin1String("H"), QLatin1String("HH")},
};

constexpr QLatin1String LegendLetters[] = {QLatin1String("Y"), QLatin1String("M"), QLatin1String("MM"),
                                           QLatin1String("D"), QLatin1String("H"), QLatin1String("N"),
                                           QLatin1String("S"), QLatin1String("DD")};

}  // namespace

QString GetDateFormatFromMacro(const QString& format) {
    QString pattern = format.toUpper();
    for (const Step& step : Steps) pattern.replace(step.from, step.to);
    return pattern;
}

QString formatUserDate(const QDateTime& moment, const QString& format, const QLocale& locale) {
    const QString pattern = GetDateFormatFromMacro(format);
    return pattern.isEmpty() ? formatShortDate(moment, locale) : formatDate(moment, pattern, locale);
}

QString dateMacroText(const QString& macroName, const QString& format, const QDateTime& moment,
                      const QLocale& locale) {
    const bool isOfMetadata =
        macroName.startsWith(QLatin1String("<<EXIF:")) || macroName.startsWith(QLatin1String("<<IPTC:"));
    return isOfMetadata ? formatDate(moment, GetDateFormatFromMacro(format), locale)
                        : formatUserDate(moment, format, locale);
}

QString macroWithDateFormat(QString macroName, const QString& format) {
    return macroName.replace(QLatin1String(">>"), QLatin1Char('[') + format + QLatin1String("]>>"));
}

QStringList dateFormatLegend(const QDateTime& moment, const QLocale& locale) {
    QStringList lines;
    for (const QLatin1String letters : LegendLetters) {
        lines += letters + QLatin1String(" : ") + formatUserDate(moment, letters, locale);
    }
    return lines;
}

}  // namespace zelto
