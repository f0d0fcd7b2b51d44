// SPDX-License-Identifier: GPL-3.0-or-later
// The 8-bit character set Windows-1252, which Qt does not carry.
#pragma once

#include <QChar>

namespace zelto {

// The character of `code`. The five codes from 0x80 to 0x9F that the set leaves open give the control
// character of the same number, as Latin-1 has it.
QChar windows1252Character(unsigned char code);

}  // namespace zelto
