// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_kind.h"

namespace zelto {
namespace {

struct Signature {
    PictureKind kind;
    QByteArrayView bytes;
    qsizetype at = 0;
};

constexpr Signature Signatures[] = {
    {PictureKind::Jpeg, {"\xFF\xD8", 2}},
    {PictureKind::Png, {"\x89PNG\r\n\x1A\n", 8}},
    {PictureKind::Tiff, {"II*\0", 4}},
    {PictureKind::Tiff, {"MM\0*", 4}},
    {PictureKind::Tiff, {"II+\0", 4}},
    {PictureKind::Tiff, {"MM\0+", 4}},
    {PictureKind::Gif, {"GIF87a", 6}},
    {PictureKind::Gif, {"GIF89a", 6}},
    {PictureKind::Bmp, {"BM", 2}},
    {PictureKind::Webp, {"WEBPVP8", 7}, 8},
    {PictureKind::Jxl, {"\xFF\x0A", 2}},
    {PictureKind::Jxl, {"\0\0\0\x0CJXL \r\n\x87\n", 12}},
    {PictureKind::Heif, {"ftyphei", 7}, 4},
    {PictureKind::Heif, {"ftyphev", 7}, 4},
    {PictureKind::Heif, {"ftypmif1", 8}, 4},
    {PictureKind::Heif, {"ftypmsf1", 8}, 4},
    {PictureKind::Heif, {"ftypavi", 7}, 4},
    {PictureKind::Raw, {"ftypcrx ", 8}, 4},
    {PictureKind::Raw, {"FUJIFILMCCD-RAW", 15}},
    {PictureKind::Raw, {"IIRO", 4}},
    {PictureKind::Raw, {"IIRS", 4}},
    {PictureKind::Raw, {"MMOR", 4}},
    {PictureKind::Raw, {"IIU\0", 4}},
    {PictureKind::Raw, {"HEAPCCDR", 8}, 6},
    {PictureKind::Raw, {"\0MRM", 4}},
    {PictureKind::Raw, {"FOVb", 4}},
    {PictureKind::Drawing, {"\x1F\x8B", 2}},  // a compressed SVG
    {PictureKind::Drawing, {"%PDF", 4}},
    {PictureKind::Drawing, {"%!PS", 4}},
};

}  // namespace

PictureKind pictureKindOf(QByteArrayView beginning) {
    for (const Signature& signature : Signatures) {
        if (beginning.size() >= signature.at && beginning.sliced(signature.at).startsWith(signature.bytes))
            return signature.kind;
    }
    const bool isSvg = beginning.first(qMin(beginning.size(), PictureKindBytes)).contains("<svg");
    return isSvg ? PictureKind::Drawing : PictureKind::Unknown;
}

}  // namespace zelto
