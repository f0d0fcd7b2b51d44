// SPDX-License-Identifier: GPL-3.0-or-later
// The frames of a JPEG XL file, also those that are never shown, whose sizes libjxl does not tell. Written from
// ISO/IEC 18181-1 (frame headers, tables of contents) and 18181-2 (boxes).
#pragma once

#include <QByteArrayView>

#include <optional>

namespace zelto {

// The pixels of the largest frame. Nothing where the frames cannot be followed up to the last: in a damaged file, and in
// one that no program writes. Throws std::bad_alloc. Any thread.
std::optional<qint64> largestJxlFrame(QByteArrayView file);

}  // namespace zelto
