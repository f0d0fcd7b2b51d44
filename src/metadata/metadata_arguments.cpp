// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_arguments.h"

#include "records/output_options.h"

#include <array>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr std::array CopyrightTags = {
    "-Artist"_L1,           "-Copyright"_L1,       "-by-line"_L1,           "-by-linetitle"_L1,
    "-Copyrightnotice"_L1,  "-AuthorsPosition"_L1, "-Webstatement"_L1,      "-Creator"_L1,
    "-Rights"_L1,           "-Usageterms"_L1,      "-CreatorCountry"_L1,    "-CreatorCity"_L1,
    "-CreatorWorkEmail"_L1, "-CreatorWorkURL"_L1,  "-CreatorPostalCode"_L1, "-CreatorWorkTelephone"_L1,
    "-CreatorRegion"_L1,    "-CreatorAddress"_L1,  "-CopyRightStatus"_L1,   "-jfif:Xresolution"_L1,
    "-jfif:Yresolution"_L1};

// Positions in Exif, in XMP under all its names, and in GeoTIFF. Their exiftool names, "*" for any letters.
constexpr std::array PositionTags = {
    "-gps:all"_L1,          "-xmp:*gps*"_L1,           "-xmp:*itude"_L1,         "-xmp:*coordinates"_L1,
    "-GeoTiffDirectory"_L1, "-GeoTiffDoubleParams"_L1, "-GeoTiffAsciiParams"_L1, "-PixelScale"_L1,
    "-ModelTiePoint"_L1,    "-ModelTransform"_L1};

// Pictures that are text in XMP, and those that stand behind the photo's own.
constexpr std::array PictureTags = {"-xmp:Thumbnails"_L1, "-xmp:ThumbnailImage"_L1, "-xmp:PageImage"_L1,
                                    "-xmp:ImageData"_L1,  "-xmp:DepthImage"_L1,     "-PreviewImage"_L1,
                                    "-JpgFromRaw"_L1,     "-OtherImage"_L1};

// The tags a field of the copyright record is written to. "Rights" takes the creator's name, not the usage terms.
struct FieldTags {
    QString CopyRightMetaData::*field;
    std::array<QLatin1String, 4> tags;
};

constexpr std::array<FieldTags, 13> FieldsWritten = {{
    {&CopyRightMetaData::Creator, {"-Artist"_L1, "-by-line"_L1, "-Creator"_L1, "-Rights"_L1}},
    {&CopyRightMetaData::CopyrightText, {"-Copyright"_L1, "-Copyrightnotice"_L1}},
    {&CopyRightMetaData::CreatorJobTitle, {"-by-linetitle"_L1, "-AuthorsPosition"_L1}},
    {&CopyRightMetaData::CreatorWebsite, {"-CreatorWorkURL"_L1}},
    {&CopyRightMetaData::CopyrightURL, {"-Webstatement"_L1}},
    {&CopyRightMetaData::RightsUsageTerms, {"-Usageterms"_L1}},
    {&CopyRightMetaData::CreatorCountry, {"-CreatorCountry"_L1}},
    {&CopyRightMetaData::CreatorCity, {"-CreatorCity"_L1}},
    {&CopyRightMetaData::CreatorMail, {"-CreatorWorkEmail"_L1}},
    {&CopyRightMetaData::CreatorPostalCode, {"-CreatorPostalCode"_L1}},
    {&CopyRightMetaData::CreatorPhone, {"-CreatorWorkTelephone"_L1}},
    {&CopyRightMetaData::CreatorState, {"-CreatorRegion"_L1}},
    {&CopyRightMetaData::CreatorAddress, {"-CreatorAddress"_L1}},
}};

QString assignment(QLatin1String tag, const QString& value) {
    return tag + u'=' + value;
}

QStringList resolutionAssignments(double resolution, std::initializer_list<QLatin1String> tags) {
    QStringList arguments;
    for (const QLatin1String tag : tags) arguments += assignment(tag, QString::number(resolution, 'f', 6));
    return arguments;
}

QString writtenStatus(const CopyRightMetaData& copyright) {
    return copyright.CopyrightTextStatus == "Copyrighted"_L1 ? u"Protected"_s : copyright.CopyrightTextStatus;
}

QStringList copyrightArguments(const CopyRightMetaData& copyright) {
    QStringList arguments;
    for (const FieldTags& written : FieldsWritten) {
        const QString& value = copyright.*written.field;
        if (value.isEmpty()) continue;
        for (const QLatin1String tag : written.tags) {
            if (!tag.isEmpty()) arguments += assignment(tag, value);
        }
    }
    const QString status = writtenStatus(copyright);
    if (!status.isEmpty()) arguments += assignment("-CopyRightStatus"_L1, status);
    return arguments;
}

// The record as far as it is written.
const CopyRightMetaData* writtenCopyright(const MetadataRequest& request) {
    const bool isWritten =
        request.copyright && request.copyright->Enabled && request.exifDataToInclude != exif_data::ExcludeAll;
    return isWritten ? &*request.copyright : nullptr;
}

// The code that stands for a status word in files; null for a word that has none.
QString statusCode(const QString& status) {
    static constexpr std::array<std::pair<QLatin1String, QLatin1String>, 3> Codes = {
        {{"Protected"_L1, "CS-PRO"_L1}, {"Unknown"_L1, "CS-UNK"_L1}, {"Public Domain"_L1, "CS-PUB"_L1}}};
    for (const auto& [word, code] : Codes) {
        if (status == word) return code;
    }
    return {};
}

}  // namespace

QStringList metadataArguments(const MetadataRequest& request) {
    const std::int64_t choice = request.exifDataToInclude;
    const QStringList jfifResolution =
        resolutionAssignments(request.resolution, {"-jfif:Xresolution"_L1, "-jfif:Yresolution"_L1});
    QStringList arguments = {u"-overwrite_original"_s, u"-all="_s};
    if (choice != exif_data::ExcludeAll) {
        arguments << u"-tagsfromfile"_s << request.source;
        if (choice == exif_data::CopyrightOnly) {
            for (const QLatin1String tag : CopyrightTags) arguments += tag;
            arguments += jfifResolution;
            arguments += resolutionAssignments(request.resolution, {"-Xresolution"_L1, "-Yresolution"_L1});
        }
        if (const CopyRightMetaData* copyright = writtenCopyright(request)) {
            arguments += copyrightArguments(*copyright);
        }
        arguments << u"-Orientation=1"_s << u"-n"_s;
        if (choice == exif_data::ExcludeGeolocation) arguments += u"-geotag="_s;
    }
    if (choice != exif_data::IncludeAll) arguments += jfifResolution;
    arguments += request.output;
    return arguments;
}

QStringList mendArguments(const MetadataRequest& request, const MetadataFaults& faults) {
    QStringList changes;
    if (faults.positions) {
        for (const QLatin1String tags : PositionTags) changes += tags + u'=';
    }
    if (faults.pictures) {
        for (const QLatin1String tags : PictureTags) changes += tags + u'=';
    }
    if (const CopyRightMetaData* copyright = writtenCopyright(request)) {
        const QString code = statusCode(writtenStatus(*copyright));
        if (!code.isNull()) changes += assignment("-xmp-plus:CopyrightStatus#"_L1, code);
    }
    if (faults.resolution) {
        if (faults.isJpeg) {
            changes +=
                resolutionAssignments(request.resolution, {"-jfif:Xresolution"_L1, "-jfif:Yresolution"_L1});
            changes += u"-jfif:ResolutionUnit=inches"_s;
        }
        if (!faults.isJpeg || request.exifDataToInclude != exif_data::ExcludeAll) {
            changes +=
                resolutionAssignments(request.resolution, {"-ifd0:Xresolution"_L1, "-ifd0:Yresolution"_L1});
            changes += u"-ifd0:ResolutionUnit=inches"_s;
        }
    }
    if (changes.isEmpty()) return {};
    return QStringList{u"-overwrite_original"_s} + changes + QStringList{request.output};
}

}  // namespace zelto
