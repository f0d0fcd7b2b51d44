// SPDX-License-Identifier: GPL-3.0-or-later
// Text from metadata, whose declared encoding is often wrong or missing. For the property dictionaries only.
#pragma once

#include <QByteArray>
#include <QString>

namespace zelto {

// No metadata value of a list or a text is taken beyond these: files of strangers may claim millions.
inline constexpr qsizetype LongestMetadataText = 1 << 16;  // bytes
inline constexpr qsizetype LongestMetadataList = 1 << 10;  // elements

// `bytes` up to the first NUL, without the blanks that fill fixed fields: UTF-8 where they are valid UTF-8,
// whatever is declared, else Windows-1252 (Latin-1 with printable characters from 0x80 to 0x9F).
QString metadataText(QByteArray bytes);

}  // namespace zelto
