// SPDX-License-Identifier: GPL-3.0-or-later
// The pattern that names outputs, such as "[O]_[###]" or "<<EXIF:DateTimeOriginal[Y-M-D]>>_[###]": its own macros in
// square brackets, and every macro of a watermark text in angle ones. What a photo's metadata holds may come from
// strangers: no value leads out of the output folder, hides the file, or makes its name too long. Any thread.
#pragma once

#include "macros/macro_expander.h"
#include "records/macro.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QLocale>
#include <QString>

namespace zelto {

// The macros in square brackets in the order they are filled in, then those in angle brackets that names are often made
// of.
QList<Macro> renameMacros();

// Whether filling the pattern in may take a look at the photo itself.
bool asksPhotos(const QString& pattern);

// What is known of one photo without opening it.
struct NamedPhoto {
    QString path;
    qint64 row = 0;  // in the photo list, from 0; unchecked photos count
    QDate today;
};

// What the angle macros of `pattern` expand with; reads no more of the photo than they ask for.
MacroContext renameContext(const QString& pattern, const QString& path, qint64 row, const QDateTime& now,
                           const QLocale& locale);

// The pattern filled in, as one part of a path; without `macros` the angle ones stay as they stand. May be empty.
QString filledPattern(const QString& pattern, const NamedPhoto& photo, const MacroContext* macros = nullptr);

// The text as one part of a path: separators would name a folder.
QString asFileName(QString text);

}  // namespace zelto
