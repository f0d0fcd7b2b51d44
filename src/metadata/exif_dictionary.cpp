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

// A property the dictionary does not take as exiv2 has it. All others have exiv2's name, which is the EXIF standard's.
struct Exception {
    std::uint16_t tag;
    Kind kind = Kind::Natural;
    const char* key = nullptr;  // instead of exiv2's name; "" leaves the property out
};

// By tag.
constexpr Exception Exceptions[] = {
    {0x8827, Kind::List},         // ISOSpeedRatings
    {0x9000, Kind::Version},      // ExifVersion
    {0x9101, Kind::List},         // ComponentsConfiguration
    {0x9214, Kind::List},         // SubjectArea
    {0x927C, Kind::Natural, ""},  // MakerNote
    {0x9286, Kind::Comment},      // UserComment
    {0x9290, Kind::Natural, "SubsecTime"},
    {0x9291, Kind::Natural, "SubsecTimeOriginal"},
    {0x9292, Kind::Natural, "SubsecTimeDigitized"},
    {0x9400, Kind::Natural, ""},  // Temperature
    {0x9401, Kind::Natural, ""},  // Humidity
    {0x9402, Kind::Natural, ""},  // Pressure
    {0x9403, Kind::Natural, ""},  // WaterDepth
    {0x9404, Kind::Natural, ""},  // Acceleration
    {0x9405, Kind::Natural, ""},  // CameraElevationAngle
    {0xA000, Kind::Version, "FlashPixVersion"},
    {0xA005, Kind::Natural, ""},  // InteroperabilityTag
    {0xA300, Kind::Number},       // FileSource
    {0xA301, Kind::Number},       // SceneType
    {0xA405, Kind::Natural, "FocalLenIn35mmFilm"},
    {0xA40C, Kind::Natural, "SubjectDistRange"},
    {0xA432, Kind::List},         // LensSpecification
    {0xA460, Kind::Natural, ""},  // CompositeImage
    {0xA461, Kind::Natural, ""},  // SourceImageNumberOfCompositeImage
    {0xA462, Kind::Natural, ""},  // SourceExposureTimesOfCompositeImage
};

const Exception* findException(std::uint16_t tag) {
    const auto found = std::ranges::lower_bound(Exceptions, tag, {}, &Exception::tag);
    return found == std::end(Exceptions) || found->tag != tag ? nullptr : found;
}

// exiv2's name of a property; empty where it knows none and would print the number.
QString standardName(std::uint16_t tag) {
    const QString name = QString::fromStdString(Exiv2::ExifKey(tag, "Photo").tagName());
    return name.startsWith(QLatin1String("0x")) ? QString() : name;
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
        const Exception* const exception = findException(datum.tag());
        const bool isRenamed = exception != nullptr && exception->key != nullptr;
        const QString key = isRenamed ? QString::fromLatin1(exception->key) : standardName(datum.tag());
        if (key.isEmpty()) continue;
        try {
            const QVariant value =
                valueOf(exception != nullptr ? exception->kind : Kind::Natural, datum.value());
            if (value.isValid() && !dictionary.contains(key)) dictionary.insert(key, value);
        } catch (const std::exception&) {
            // One value that exiv2 cannot convert does not cost the photo the others.
        }
    }
    return dictionary;
}

QString exifKeyOfStandardName(const QString& name) {
    const auto found = std::ranges::find_if(Exceptions, [&](const Exception& exception) {
        return exception.key != nullptr && *exception.key != '\0' && name == standardName(exception.tag);
    });
    return found == std::end(Exceptions) ? name : QString::fromLatin1(found->key);
}

}  // namespace zelto
