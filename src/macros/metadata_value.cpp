// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/metadata_value.h"

#include "macros/text_numbers.h"
#include "metadata/image_properties.h"

namespace zelto {
namespace {

const QVariant* findNested(const QVariantMap& dictionary, const QString& key) {
    for (const QVariant& entry : dictionary) {
        if (entry.typeId() != QMetaType::QVariantMap) continue;
        const auto& nested = *static_cast<const QVariantMap*>(entry.constData());
        if (const auto found = nested.constFind(key); found != nested.cend()) return &*found;
        if (const QVariant* found = findNested(nested, key)) return found;
    }
    return nullptr;
}

}  // namespace

QVariant GetValueFromDictionary(const QVariantMap& dictionary, const QString& key) {
    const QVariant* found = findNested(dictionary, key);
    return found == nullptr ? QVariant(QString()) : *found;
}

QVariant metadataValue(const QVariantMap& dictionary, const QString& key) {
    if (const auto found = dictionary.constFind(key); found != dictionary.cend()) return *found;
    if (const auto found = dictionary.constFind(exifKeyOfStandardName(key)); found != dictionary.cend())
        return *found;
    return GetValueFromDictionary(dictionary, key);
}

std::optional<QString> GetStringValue(const QVariant& value, const QString& key) {
    switch (value.typeId()) {
        case QMetaType::QString:
            return value.toString();
        case QMetaType::LongLong:
            return QString::number(value.toLongLong());
        case QMetaType::Double:
            return NumberText(value.toDouble());
        case QMetaType::QVariantList:
            break;
        default:
            return std::nullopt;
    }
    QStringList texts;
    for (const QVariant& element : value.toList()) {
        const std::optional<QString> text = GetStringValue(element, key);
        if (!text) return std::nullopt;
        texts += *text;
    }
    if (texts.isEmpty()) return std::nullopt;
    return texts.join(key.contains(QLatin1String("Version")) ? QLatin1String(".") : QLatin1String(", "));
}

}  // namespace zelto
