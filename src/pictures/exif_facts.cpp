// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/exif_facts.h"

#include <exiv2/exiv2.hpp>

#include <new>

namespace zelto {
namespace {

constexpr int UnitInch = 2;
constexpr int UnitCentimetre = 3;

const Exiv2::Value* find(const Exiv2::ExifData& exif, const char* key) {
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() || found->count() == 0 ? nullptr : &found->value();
}

int integer(const Exiv2::ExifData& exif, const char* key, int otherwise) {
    const Exiv2::Value* value = find(exif, key);
    return value == nullptr ? otherwise : static_cast<int>(value->toLong());
}

double real(const Exiv2::ExifData& exif, const char* key) {
    const Exiv2::Value* value = find(exif, key);
    if (value == nullptr) return 0.0;
    const auto [numerator, denominator] = value->toRational();
    return denominator == 0 ? 0.0 : static_cast<double>(numerator) / denominator;
}

ExifFacts factsOf(const Exiv2::ExifData& exif) {
    ExifFacts facts;
    const int orientation = integer(exif, "Exif.Image.Orientation", 1);
    if (orientation >= 1 && orientation <= 8) facts.orientation = orientation;

    const int unit = integer(exif, "Exif.Image.ResolutionUnit", UnitInch);
    if (unit == UnitInch || unit == UnitCentimetre) {
        const double perInch = unit == UnitInch ? 1.0 : 2.54;
        facts.dpiX = real(exif, "Exif.Image.XResolution") * perInch;
        facts.dpiY = real(exif, "Exif.Image.YResolution") * perInch;
    }

    constexpr int Uncalibrated = 0xFFFF;
    const Exiv2::Value* interoperability = find(exif, "Exif.Iop.InteroperabilityIndex");
    facts.isDcfAdobeRgb = integer(exif, "Exif.Photo.ColorSpace", 0) == Uncalibrated &&
                          interoperability != nullptr && interoperability->toString().substr(0, 3) == "R03";
    return facts;
}

}  // namespace

ExifFacts readExifFacts(QByteArrayView exif) {
    // Its warnings about camera makers' private data would end up among the program's own messages.
    static const bool quiet = (Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute), true);
    Q_UNUSED(quiet)
    constexpr QByteArrayView Signature("Exif\0\0", 6);
    if (exif.startsWith(Signature)) exif = exif.sliced(Signature.size());
    try {
        Exiv2::ExifData data;
        Exiv2::ExifParser::decode(data, reinterpret_cast<const Exiv2::byte*>(exif.data()),
                                  static_cast<std::uint32_t>(exif.size()));
        return factsOf(data);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace zelto
