// SPDX-License-Identifier: GPL-3.0-or-later
// How large the pictures of a HEIC or AVIF file become while they are decoded. The file states a size for its picture,
// but a codec goes by the headers inside its own data, and one that is put together from others by its description; both
// may say anything. Written from ISO/IEC 14496-12 (boxes), ISO/IEC 23008-12 (grids and overlays), ISO/IEC 23008-2 (HEVC)
// and the AV1 bitstream specification.
#pragma once

#include <QByteArrayView>

#include <optional>

namespace zelto {

// The pixels of the largest picture that `file` has coded or put together, 0 where there is none. Nothing for a file
// that no program writes: one that gives out the same bytes as the data of many pictures, or whose description a decoder
// may take for something else than is measured, because it is there twice or by fields that decoders read differently.
// Any thread.
std::optional<qint64> largestCodedPicture(QByteArrayView file);

}  // namespace zelto
