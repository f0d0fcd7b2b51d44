// SPDX-License-Identifier: GPL-3.0-or-later
// The EXIF dictionary of a photo's properties from what exiv2 has read. For image_properties.cpp only.
#pragma once

#include <QVariantMap>

namespace Exiv2 {
class ExifData;
}

namespace zelto {

QVariantMap exifDictionary(const Exiv2::ExifData& data);

}  // namespace zelto
