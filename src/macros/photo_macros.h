// SPDX-License-Identifier: GPL-3.0-or-later
// The macros an editor offers for one photo, each with what it prints there. Reentrant, any thread; reads the
// photo.
#pragma once

#include "macros/macro_expander.h"
#include "records/macro.h"

#include <QDateTime>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace zelto {

struct PhotoMacros {
    QList<Macro> list;   // the fixed rows, then the photo's EXIF and IPTC properties
    QStringList values;  // of each row; the running number's is that of a count by one from 1
};

// What texts expand with on one photo that is not being drawn: in an editor, a value is the one that the preview shows.
// Reads the photo's headers, and its metadata once a macro asks for them. `row` is its place in the photo list, from 0.
MacroContext photoMacroContext(const QString& path, qint64 row, const QDateTime& now, const QLocale& locale);
// The same without the headers: size and resolution are not known.
MacroContext unreadMacroContext(const QString& path, qint64 row, const QDateTime& now, const QLocale& locale);

// `row` is the photo's place in the photo list, from 0. An empty path, for no photo, gives the fixed rows with
// what can be told without one.
PhotoMacros macrosOfPhoto(const QString& path, qint64 row, const QDateTime& now, const QLocale& locale);

}  // namespace zelto
