// SPDX-License-Identifier: GPL-3.0-or-later
// Dates as text, by Unicode TR 35 date patterns, always in the Gregorian calendar. The words, the digits and
// the short style are the locale's; the clock is that of the moment's own time zone. Parsing knows the two
// forms photos carry and neither locale nor zone. All functions may be called on any thread; each thread
// keeps the formatter it used last.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <optional>

namespace zelto {

// `moment` by `pattern` ("EEEE, dd MMMM yyyy"). A run of letters that is not a date field, or that prints
// nothing, is printed as it stands: a pattern is never refused and nothing of it is lost. Empty for an
// invalid moment.
QString formatDate(const QDateTime& moment, QStringView pattern, const QLocale& locale);

// `moment` in the short date style of `locale`, without a time. Empty for an invalid moment.
QString formatShortDate(const QDateTime& moment, const QLocale& locale);

// The date of a text such as "2014:05:03 09:41:07", its clock taken as UTC. Read strictly by yyyy:MM:dd
// hh:mm:ss first, where noon is hour 00 and the hours 13 to 23 are none; a text refused there counts when its
// reading as a 24-hour clock prints the same text again, so "0000:00:00 00:00:00" stays no date.
std::optional<QDateTime> parsePhotoDateTime(const QString& text);

// The date of a text such as "20140503", at midnight UTC, read strictly by yyyyMMdd.
std::optional<QDateTime> parsePhotoDate(const QString& text);

// The locale the user's environment asks dates to be written in (LC_ALL, LC_TIME, LANG, in this order).
QLocale userDateLocale();

}  // namespace zelto
