// SPDX-License-Identifier: GPL-3.0-or-later
// Everything one batch run needs to know about its output files.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace zelto {

// What `OutputOptions::ResizeType` may hold.
namespace resize_type {
inline constexpr std::int64_t Percentage = 0;
inline constexpr std::int64_t Pixels = 1;
inline constexpr std::int64_t LongerSide = 2;
}  // namespace resize_type

// What `OutputOptions::ExifDataToInclude` may hold.
namespace exif_data {
inline constexpr std::int64_t IncludeAll = 0;
inline constexpr std::int64_t CopyrightOnly = 1;
inline constexpr std::int64_t ExcludeGeolocation = 2;
inline constexpr std::int64_t ExcludeAll = 3;
}  // namespace exif_data

// The `OutputOptions::OutputFormat` that keeps each photo's own format. Every other value is a file extension
// in lower case without its dot.
inline constexpr QLatin1String SameAsSourceFormat("Same as source image");

struct OutputOptions {
    QString OutputPath;  // absolute path of the output folder
    QString OutputFormat;
    std::int64_t JPEGQuality = 0;  // 0 to 100
    bool Rename = false;
    QString RenameFormat;
    std::int64_t ResizeType = 0;
    std::int64_t ResizeHeight = 0;  // per cent or pixels, by ResizeType
    std::int64_t ResizeWidth = 0;
    bool AspectRatio = false;
    bool DontEnlargeSmallImage = false;
    bool ResizeImage = false;
    QByteArray OutputFolderData;  // durable reference to the output folder: its absolute path in UTF-8
    bool CombineToSinglePDF = false;
    bool KeepDirectoryStructure = false;
    std::int64_t LongestsideSize = 0;  // pixels
    std::int64_t ExifDataToInclude = 0;
    bool JpegLossless = false;  // JPEG to JPEG: blocks that no watermark touches stay as they are

    bool operator==(const OutputOptions&) const = default;
};

}  // namespace zelto
