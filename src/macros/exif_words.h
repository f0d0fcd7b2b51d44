// SPDX-License-Identifier: GPL-3.0-or-later
// Words for the codes that EXIF and TIFF properties hold. Any thread.
#pragma once

#include <QString>

namespace zelto {

// What a macro prints for the property `key` whose value is `text`: the word of its code, a fraction for an exposure
// time ("0.004" is "1/250"), otherwise the text itself. Keys are compared exactly. "ApertureValue" prints the words of
// the exposure programs: 2.8 counts as code 2.
QString GetExifValue(const QString& text, const QString& key);

}  // namespace zelto
