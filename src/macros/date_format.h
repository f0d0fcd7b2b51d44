// SPDX-License-Identifier: GPL-3.0-or-later
// The date formats users write inside a macro's square brackets. They consist of the letters Y M MM D DD H N S, in
// either case; a macro keeps its format as typed, and it is translated when the macro is expanded. Also what a dialog
// for such a format shows and returns. Any thread.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace zelto {

// The format a user starts with who has not confirmed one yet.
inline constexpr QLatin1String DefaultDateFormat("Y-M-D H:N:S");

// The TR 35 pattern of a user's format: "DD, D MM Y" gives "EEEE, dd MMMM yyyy". Other characters pass
// through in upper case. An empty format gives an empty pattern.
QString GetDateFormatFromMacro(const QString& format);

// `moment` by a user's format; in the short date style of `locale` where the format is empty. Preview and
// expansion both print this.
QString formatUserDate(const QDateTime& moment, const QString& format, const QLocale& locale);

// What the date macro `macroName` prints for `moment` with a user's format in it. They differ where the format is empty:
// the dates of files and of today are then in the short date style, and those of the metadata are left out.
QString dateMacroText(const QString& macroName, const QString& format, const QDateTime& moment,
                      const QLocale& locale);

// The token of a date macro with a user's format in it: "<<MODDATE>>" and "Y-M-D" give "<<MODDATE[Y-M-D]>>".
QString macroWithDateFormat(QString macroName, const QString& format);

// A line for each letter a format may hold, with what it prints for `moment`: "Y : 2024", "M : 05", "MM :
// May", "D : 03", "H : 09", "N : 41", "S : 07", "DD : Friday".
QStringList dateFormatLegend(const QDateTime& moment, const QLocale& locale);

}  // namespace zelto
