// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/iptc_dictionary.h"

#include "metadata/metadata_text.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zelto {
namespace {

struct DataSet {
    std::uint16_t number;
    const char* key;
    bool repeatable = false;
};

// Those of the application record, by number.
constexpr DataSet DataSets[] = {
    {3, "ObjectTypeReference"},
    {4, "ObjectAttributeReference", true},
    {5, "ObjectName"},
    {7, "EditStatus"},
    {8, "EditorialUpdate"},
    {10, "Urgency"},
    {12, "SubjectReference", true},
    {15, "Category"},
    {20, "SupplementalCategory", true},
    {22, "FixtureIdentifier"},
    {25, "Keywords", true},
    {26, "ContentLocationCode", true},
    {27, "ContentLocationName", true},
    {30, "ReleaseDate"},
    {35, "ReleaseTime"},
    {37, "ExpirationDate"},
    {38, "ExpirationTime"},
    {40, "SpecialInstructions"},
    {42, "ActionAdvised"},
    {45, "ReferenceService", true},
    {47, "ReferenceDate", true},
    {50, "ReferenceNumber", true},
    {55, "DateCreated"},
    {60, "TimeCreated"},
    {62, "DigitalCreationDate"},
    {63, "DigitalCreationTime"},
    {65, "OriginatingProgram"},
    {70, "ProgramVersion"},
    {75, "ObjectCycle"},
    {80, "Byline", true},
    {85, "BylineTitle", true},
    {90, "City"},
    {92, "SubLocation"},
    {95, "Province/State"},
    {100, "Country/PrimaryLocationCode"},
    {101, "Country/PrimaryLocationName"},
    {103, "OriginalTransmissionReference"},
    {105, "Headline"},
    {110, "Credit"},
    {115, "Source"},
    {116, "CopyrightNotice"},
    {118, "Contact", true},
    {120, "Caption/Abstract"},
    {122, "Writer/Editor", true},
    {130, "ImageType"},
    {131, "ImageOrientation"},
    {135, "LanguageIdentifier"},
};

constexpr const char* ContactProperty = "Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:";
constexpr const char* ContactFields[] = {"CiAdrExtadr", "CiAdrCity",   "CiAdrRegion", "CiAdrPcode",
                                         "CiAdrCtry",   "CiEmailWork", "CiTelWork",   "CiUrlWork"};

const DataSet* findDataSet(std::uint16_t number) {
    const auto found = std::ranges::lower_bound(DataSets, number, {}, &DataSet::number);
    return found == std::end(DataSets) || found->number != number ? nullptr : found;
}

// As the file stores it: dates and times without the punctuation that exiv2 prints.
QString storedText(const Exiv2::Value& value) {
    QByteArray bytes(static_cast<qsizetype>(value.size()), Qt::Uninitialized);
    value.copy(reinterpret_cast<Exiv2::byte*>(bytes.data()), Exiv2::bigEndian);
    return metadataText(bytes);
}

void addDataSet(QVariantMap& dictionary, const DataSet& set, const Exiv2::Value& value) {
    const QString key = QString::fromLatin1(set.key);
    if (!set.repeatable) {
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
        if (const DataSet* set = findDataSet(datum.tag())) addDataSet(dictionary, *set, datum.value());
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
