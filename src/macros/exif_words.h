// SPDX-License-Identifier: GPL-3.0-or-later
// Words for the codes that EXIF and TIFF properties hold. Any thread.
#pragma once

#include <QString>

namespace zelto {

// What is printed for the property `key` whose value reads `text`: the word of its code, a fraction for an
// exposure time ("0.004" is "1/250"), otherwise the text itself. Keys are compared exactly. The words of the
// exposure programs also belong to the key "ApertureValue", where 2.8 counts as code 2.
QString GetExifValue(const QString& text, const QString& key);

}  // namespace zelto
