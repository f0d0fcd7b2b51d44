// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers inside texts: the forgiving reading that running numbers and metadata words share, and how a
// metadata number is printed. None of it depends on a locale.
#pragma once

#include <QString>

namespace zelto {

// The whole number a text starts with: leading blanks, a sign, then digits 0 to 9; 0 where there are none. A
// number beyond 64 bits becomes the nearest one that fits.
qint64 IntegerValue(QStringView text);

// The decimal number a text starts with, read the same way; 0 where there is none.
double DoubleValue(QStringView text);

// As printf's %0.16g in the C locale: "2.8", "4", "0.01666666666666667".
QString NumberText(double value);

}  // namespace zelto
