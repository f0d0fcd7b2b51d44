// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/iptc_dictionary.h"

#include "metadata/metadata_text.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zelto {
namespace {

// A data set of the application record whose name here is not exiv2's; "" leaves it out. exiv2 knows which sets may be
// repeated.
struct OtherKey {
    std::uint16_t number;
    const char* key;
};

// By number.
constexpr OtherKey OtherKeys[] = {
    {0, ""},  // RecordVersion
    {3, "ObjectTypeReference"},
    {4, "ObjectAttributeReference"},
    {12, "SubjectReference"},
    {20, "SupplementalCategory"},
    {22, "FixtureIdentifier"},
    {26, "ContentLocationCode"},
    {27, "ContentLocationName"},
    {62, "DigitalCreationDate"},
    {63, "DigitalCreationTime"},
    {65, "OriginatingProgram"},
    {95, "Province/State"},
    {100, "Country/PrimaryLocationCode"},
    {101, "Country/PrimaryLocationName"},
    {103, "OriginalTransmissionReference"},
    {116, "CopyrightNotice"},
    {120, "Caption/Abstract"},
    {122, "Writer/Editor"},
    {125, ""},  // RasterizedCaption
    {135, "LanguageIdentifier"},
    {150, ""},  // AudioType
    {151, ""},  // AudioRate
    {152, ""},  // AudioResolution
    {153, ""},  // AudioDuration
    {154, ""},  // AudioOutcue
    {200, ""},  // PreviewFormat
    {201, ""},  // PreviewVersion
    {202, ""},  // Preview
};

// Empty for a data set that is left out, as all are that exiv2 knows no name of and would print the number.
QString keyOf(std::uint16_t number) {
    const auto found = std::ranges::lower_bound(OtherKeys, number, {}, &OtherKey::number);
    if (found != std::end(OtherKeys) && found->number == number) return QString::fromLatin1(found->key);
    const QString name =
        QString::fromStdString(Exiv2::IptcDataSets::dataSetName(number, Exiv2::IptcDataSets::application2));
    return name.startsWith(QLatin1String("0x")) ? QString() : name;
}

constexpr const char* ContactProperty = "Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:";
constexpr const char* ContactFields[] = {"CiAdrExtadr", "CiAdrCity",   "CiAdrRegion", "CiAdrPcode",
                                         "CiAdrCtry",   "CiEmailWork", "CiTelWork",   "CiUrlWork"};

// As the file stores it: dates and times without the punctuation that exiv2 prints.
QString storedText(const Exiv2::Value& value) {
    QByteArray bytes(static_cast<qsizetype>(value.size()), Qt::Uninitialized);
    value.copy(reinterpret_cast<Exiv2::byte*>(bytes.data()), Exiv2::bigEndian);
    return metadataText(bytes);
}

void addDataSet(QVariantMap& dictionary, std::uint16_t number, const Exiv2::Value& value) {
    const QString key = keyOf(number);
    if (key.isEmpty()) return;
    if (!Exiv2::IptcDataSets::dataSetRepeatable(number, Exiv2::IptcDataSets::application2)) {
        if (!dictionary.contains(key)) dictionary.insert(key, storedText(value));
        return;
    }
    QVariantList list = dictionary.take(key).toList();
    if (list.size() < LongestMetadataList) list.append(storedText(value));
    dictionary.insert(key, list);
}

const Exiv2::Value* find(const Exiv2::XmpData& xmp, const std::string& key) {
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    return found == xmp.end() || found->count() == 0 ? nullptr : &found->value();
}

QString xmpText(const Exiv2::Value& value, long i = 0) {
    return metadataText(QByteArray::fromStdString(value.toString(i)));
}

QVariant starRating(const Exiv2::Value& value) {
    bool isNumber = false;
    const double rating = xmpText(value).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(rating)) return {};
    return rating == std::trunc(rating) && std::abs(rating) < 1e9 ? QVariant(static_cast<qlonglong>(rating))
                                                                  : QVariant(rating);
}

QVariant usageTerms(const Exiv2::Value& value) {
    const auto* languages = dynamic_cast<const Exiv2::LangAltValue*>(&value);
    if (languages == nullptr) return xmpText(value);
    auto found = languages->value_.find("x-default");
    if (found == languages->value_.end()) found = languages->value_.begin();
    if (found == languages->value_.end()) return {};
    return metadataText(QByteArray::fromStdString(found->second));
}

QVariant scene(const Exiv2::Value& value) {
    QVariantList list;
    const long count = std::min<long>(value.count(), LongestMetadataList);
    for (long i = 0; i < count; ++i) list.append(xmpText(value, i));
    return list;
}

struct XmpProperty {
    const char* name;
    const char* key;
    QVariant (*value)(const Exiv2::Value&);
};

constexpr XmpProperty XmpProperties[] = {{"Xmp.xmp.Rating", "StarRating", starRating},
                                         {"Xmp.xmpRights.UsageTerms", "UsageTerms", usageTerms},
                                         {"Xmp.iptc.Scene", "Scene", scene}};

QVariantMap contactInfo(const Exiv2::XmpData& xmp) {
    QVariantMap contact;
    for (const char* field : ContactFields) {
        if (const Exiv2::Value* value = find(xmp, std::string(ContactProperty) + field)) {
            contact.insert(QString::fromLatin1(field), xmpText(*value));
        }
    }
    return contact;
}

}  // namespace

QVariantMap iptcDictionary(const Exiv2::IptcData& iptc, const Exiv2::XmpData& xmp) {
    QVariantMap dictionary;
    for (const Exiv2::Iptcdatum& datum : iptc) {
        if (datum.record() != Exiv2::IptcDataSets::application2) continue;
        addDataSet(dictionary, datum.tag(), datum.value());
    }
    for (const XmpProperty& property : XmpProperties) {
        const Exiv2::Value* stored = find(xmp, property.name);
        const QVariant value = stored == nullptr ? QVariant() : property.value(*stored);
        if (value.isValid()) dictionary.insert(QString::fromLatin1(property.key), value);
    }
    if (const QVariantMap contact = contactInfo(xmp); !contact.isEmpty()) {
        dictionary.insert(QStringLiteral("CreatorContactInfo"), contact);
    }
    return dictionary;
}

}  // namespace zelto
