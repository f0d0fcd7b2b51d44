// SPDX-License-Identifier: GPL-3.0-or-later
// What kind of file a picture lies in, told by how its bytes begin and never by its name.
#pragma once

#include <QByteArrayView>

namespace zelto {

enum class PictureKind {
    Unknown,
    Jpeg,
    Png,
    Tiff,
    Gif,
    Bmp,
    Webp,
    Heif,  // HEIC and AVIF
    Jxl,
    Raw,      // of a camera; those that are TIFF files within are told apart by isCameraRaw()
    Drawing,  // shapes rather than pixels (SVG, PDF, PostScript): known, so that it can be refused in words
};

// The most bytes of a file's beginning that pictureKindOf() looks at.
inline constexpr qsizetype PictureKindBytes = 1024;

PictureKind pictureKindOf(QByteArrayView beginning);

}  // namespace zelto
