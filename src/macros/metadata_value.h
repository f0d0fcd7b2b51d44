// SPDX-License-Identifier: GPL-3.0-or-later
// From a photo's property dictionary (metadata/image_properties.h) to the text of a value. Words for codes are
// exif_words.h's, date formats date_format.h's. Any thread.
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace zelto {

// The value of `key` in the dictionaries nested in `dictionary`, the first found in the order of their keys;
// the empty text where there is none.
QVariant GetValueFromDictionary(const QVariantMap& dictionary, const QString& key);

// The value of `key` in `dictionary` itself, else as GetValueFromDictionary. The name the EXIF standard gives
// to a property counts where the dictionary calls it otherwise.
QVariant metadataValue(const QVariantMap& dictionary, const QString& key);

// The text form of a value: lists are joined by ", ", by "." where `key` is one of a version. Nothing for
// what has no text: a dictionary, an empty list, or a list that holds one of them.
std::optional<QString> GetStringValue(const QVariant& value, const QString& key);

}  // namespace zelto
