// SPDX-License-Identifier: GPL-3.0-or-later
// A photo's metadata as dictionaries by property name: EXIF (the properties of the exposure, without maker notes, the
// position and the camera's name) and IPTC with the XMP properties that belong to it. A value is a QString, a qlonglong,
// a double, a QVariantList or a QVariantMap of such values. Metadata may come from strangers: lengths are bounded, what
// cannot be understood is left out, and of a damaged file what can be read is used. Any thread.
#pragma once

#include <QString>
#include <QVariantMap>

#include <mutex>

namespace zelto {

// A dictionary without entries stands for a photo that has none.
struct ImageProperties {
    // Rationals are doubles, whole numbers and codes integers. "ISOSpeedRatings", "ComponentsConfiguration",
    // "SubjectArea", "LensSpecification" and the versions ("0221" is 2, 2, 1) are lists. The rest is text.
    QVariantMap exif;
    // Texts, and lists of texts where IPTC allows several. Dates read "yyyyMMdd". "StarRating" is a number,
    // "CreatorContactInfo" a dictionary.
    QVariantMap iptc;
};

// Reads the properties of the file at `path`; both are empty where it holds none or cannot be read.
ImageProperties readImageProperties(const QString& path);

// The key of ImageProperties::exif for a property the EXIF standard calls `name`; `name` itself where the two
// agree.
QString exifKeyOfStandardName(const QString& name);

// The properties of one photo, read when they are first asked for and then shared by all who ask.
class LazyImageProperties {
  public:
    explicit LazyImageProperties(QString path) : path_(std::move(path)) {}

    const ImageProperties& get() const;

  private:
    QString path_;
    mutable std::once_flag once_;
    mutable ImageProperties properties_;
};

}  // namespace zelto
