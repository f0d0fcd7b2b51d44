// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/exif_dictionary.h"

#include "metadata/image_properties.h"
#include "metadata/metadata_text.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zelto {
namespace {

enum class Kind {
    Natural,  // one number, several numbers, or text, as the file stores it
    List,     // a list even of one number
    Version,  // digits
    Number,   // a code the file stores as an undefined byte
    Comment   // text that names its encoding
};

struct Tag {
    std::uint16_t number;
    const char* key;
    Kind kind = Kind::Natural;
    const char* standardName = nullptr;  // where it differs from the key
};

// By number.
constexpr Tag Tags[] = {
    {0x829A, "ExposureTime"},
    {0x829D, "FNumber"},
    {0x8822, "ExposureProgram"},
    {0x8824, "SpectralSensitivity"},
    {0x8827, "ISOSpeedRatings", Kind::List},
    {0x8828, "OECF"},
    {0x8830, "SensitivityType"},
    {0x8831, "StandardOutputSensitivity"},
    {0x8832, "RecommendedExposureIndex"},
    {0x8833, "ISOSpeed"},
    {0x8834, "ISOSpeedLatitudeyyy"},
    {0x8835, "ISOSpeedLatitudezzz"},
    {0x9000, "ExifVersion", Kind::Version},
    {0x9003, "DateTimeOriginal"},
    {0x9004, "DateTimeDigitized"},
    {0x9010, "OffsetTime"},
    {0x9011, "OffsetTimeOriginal"},
    {0x9012, "OffsetTimeDigitized"},
    {0x9101, "ComponentsConfiguration", Kind::List},
    {0x9102, "CompressedBitsPerPixel"},
    {0x9201, "ShutterSpeedValue"},
    {0x9202, "ApertureValue"},
    {0x9203, "BrightnessValue"},
    {0x9204, "ExposureBiasValue"},
    {0x9205, "MaxApertureValue"},
    {0x9206, "SubjectDistance"},
    {0x9207, "MeteringMode"},
    {0x9208, "LightSource"},
    {0x9209, "Flash"},
    {0x920A, "FocalLength"},
    {0x9214, "SubjectArea", Kind::List},
    {0x9286, "UserComment", Kind::Comment},
    {0x9290, "SubsecTime", Kind::Natural, "SubSecTime"},
    {0x9291, "SubsecTimeOriginal", Kind::Natural, "SubSecTimeOriginal"},
    {0x9292, "SubsecTimeDigitized", Kind::Natural, "SubSecTimeDigitized"},
    {0xA000, "FlashPixVersion", Kind::Version, "FlashpixVersion"},
    {0xA001, "ColorSpace"},
    {0xA002, "PixelXDimension"},
    {0xA003, "PixelYDimension"},
    {0xA004, "RelatedSoundFile"},
    {0xA20B, "FlashEnergy"},
    {0xA20C, "SpatialFrequencyResponse"},
    {0xA20E, "FocalPlaneXResolution"},
    {0xA20F, "FocalPlaneYResolution"},
    {0xA210, "FocalPlaneResolutionUnit"},
    {0xA214, "SubjectLocation"},
    {0xA215, "ExposureIndex"},
    {0xA217, "SensingMethod"},
    {0xA300, "FileSource", Kind::Number},
    {0xA301, "SceneType", Kind::Number},
    {0xA302, "CFAPattern"},
    {0xA401, "CustomRendered"},
    {0xA402, "ExposureMode"},
    {0xA403, "WhiteBalance"},
    {0xA404, "DigitalZoomRatio"},
    {0xA405, "FocalLenIn35mmFilm", Kind::Natural, "FocalLengthIn35mmFilm"},
    {0xA406, "SceneCaptureType"},
    {0xA407, "GainControl"},
    {0xA408, "Contrast"},
    {0xA409, "Saturation"},
    {0xA40A, "Sharpness"},
    {0xA40B, "DeviceSettingDescription"},
    {0xA40C, "SubjectDistRange", Kind::Natural, "SubjectDistanceRange"},
    {0xA420, "ImageUniqueID"},
    {0xA430, "CameraOwnerName"},
    {0xA431, "BodySerialNumber"},
    {0xA432, "LensSpecification", Kind::List},
    {0xA433, "LensMake"},
    {0xA434, "LensModel"},
    {0xA435, "LensSerialNumber"},
    {0xA500, "Gamma"},
};

const Tag* findTag(std::uint16_t number) {
    const auto found = std::ranges::lower_bound(Tags, number, {}, &Tag::number);
    return found == std::end(Tags) || found->number != number ? nullptr : found;
}

QByteArray bytesOf(const Exiv2::Value& value) {
    QByteArray bytes(static_cast<qsizetype>(value.size()), Qt::Uninitialized);
    value.copy(reinterpret_cast<Exiv2::byte*>(bytes.data()), Exiv2::bigEndian);
    return bytes;
}

// Not a number where the denominator is 0.
double ratio(double numerator, double denominator) {
    return denominator == 0 ? std::nan("") : numerator / denominator;
}

double realAt(const Exiv2::Value& value, std::size_t i) {
    if (const auto* rational = dynamic_cast<const Exiv2::URationalValue*>(&value)) {
        return ratio(rational->value_[i].first, rational->value_[i].second);
    }
    if (const auto* rational = dynamic_cast<const Exiv2::RationalValue*>(&value)) {
        return ratio(rational->value_[i].first, rational->value_[i].second);
    }
    if (const auto* real = dynamic_cast<const Exiv2::DoubleValue*>(&value)) return real->value_[i];
    return static_cast<double>(value.toFloat(static_cast<long>(i)));
}

// Invalid where there is no number to give.
QVariant numberAt(const Exiv2::Value& value, std::size_t i) {
    switch (value.typeId()) {
        case Exiv2::unsignedRational:
        case Exiv2::signedRational:
        case Exiv2::tiffFloat:
        case Exiv2::tiffDouble: {
            const double real = realAt(value, i);
            return std::isfinite(real) ? QVariant(real) : QVariant();
        }
        default:
            return static_cast<qlonglong>(value.toLong(static_cast<long>(i)));
    }
}

QVariantList numbers(const Exiv2::Value& value) {
    QVariantList list;
    const auto count = std::min<std::size_t>(value.count(), LongestMetadataList);
    for (std::size_t i = 0; i < count; ++i) {
        const QVariant number = numberAt(value, i);
        list.append(number.isValid() ? number : QVariant(0.0));
    }
    return list;
}

bool isNumeric(const Exiv2::Value& value) {
    switch (value.typeId()) {
        case Exiv2::unsignedByte:
        case Exiv2::signedByte:
        case Exiv2::unsignedShort:
        case Exiv2::signedShort:
        case Exiv2::unsignedLong:
        case Exiv2::signedLong:
        case Exiv2::unsignedRational:
        case Exiv2::signedRational:
        case Exiv2::tiffFloat:
        case Exiv2::tiffDouble:
            return true;
        default:
            return false;
    }
}

QVariant naturalValue(const Exiv2::Value& value) {
    if (isNumeric(value)) return value.count() == 1 ? numberAt(value, 0) : QVariant(numbers(value));
    // Undefined bytes print as their numbers, which keeps the codes among them readable.
    if (value.typeId() == Exiv2::undefined) return metadataText(QByteArray::fromStdString(value.toString()));
    return metadataText(bytesOf(value));
}

QVariant version(const Exiv2::Value& value) {
    QByteArray digits = bytesOf(value).left(4);
    if (digits.startsWith('0')) digits.remove(0, 1);
    if (digits.endsWith('0')) digits.chop(1);
    QVariantList list;
    for (const char digit : digits) {
        if (digit >= '0' && digit <= '9') list.append(qlonglong{digit - '0'});
    }
    return list;
}

QVariant comment(const Exiv2::Value& value) {
    const auto* text = dynamic_cast<const Exiv2::CommentValue*>(&value);
    if (text == nullptr) return naturalValue(value);
    return metadataText(QByteArray::fromStdString(text->comment()));
}

QVariant valueOf(Kind kind, const Exiv2::Value& value) {
    if (value.count() == 0) return {};
    const bool isText = !isNumeric(value) && value.typeId() != Exiv2::undefined;
    if (isText && (kind == Kind::List || kind == Kind::Number)) kind = Kind::Natural;
    switch (kind) {
        case Kind::Natural:
            return naturalValue(value);
        case Kind::List:
            return numbers(value);
        case Kind::Version:
            return version(value);
        case Kind::Number:
            return numberAt(value, 0);
        case Kind::Comment:
            return comment(value);
    }
    return {};
}

}  // namespace

QVariantMap exifDictionary(const Exiv2::ExifData& data) {
    QVariantMap dictionary;
    for (const Exiv2::Exifdatum& datum : data) {
        if (datum.groupName() != "Photo") continue;
        const Tag* tag = findTag(datum.tag());
        if (tag == nullptr) continue;
        try {
            const QString key = QString::fromLatin1(tag->key);
            const QVariant value = valueOf(tag->kind, datum.value());
            if (value.isValid() && !dictionary.contains(key)) dictionary.insert(key, value);
        } catch (const std::exception&) {
            // One value that exiv2 cannot convert does not cost the photo the others.
        }
    }
    return dictionary;
}

QString exifKeyOfStandardName(const QString& name) {
    const auto found = std::ranges::find_if(Tags, [&](const Tag& tag) {
        return tag.standardName != nullptr && name == QLatin1String(tag.standardName);
    });
    return found == std::end(Tags) ? name : QString::fromLatin1(found->key);
}

}  // namespace zelto
