// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/windows1252.h"

namespace zelto {
namespace {

// Only these differ from Latin-1.
constexpr char16_t From0x80[] =
    u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
    u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";

}  // namespace

QChar windows1252Character(unsigned char code) {
    return code >= 0x80 && code < 0xA0 ? QChar(From0x80[code - 0x80]) : QChar(char16_t{code});
}

}  // namespace zelto
