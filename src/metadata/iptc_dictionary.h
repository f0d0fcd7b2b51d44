// SPDX-License-Identifier: GPL-3.0-or-later
// The IPTC dictionary of a photo's properties from what exiv2 has read. For image_properties.cpp only.
#pragma once

#include <QVariantMap>

namespace Exiv2 {
class IptcData;
class XmpData;
}  // namespace Exiv2

namespace zelto {

QVariantMap iptcDictionary(const Exiv2::IptcData& iptc, const Exiv2::XmpData& xmp);

}  // namespace zelto
