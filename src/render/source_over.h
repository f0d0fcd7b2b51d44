// SPDX-License-Identifier: GPL-3.0-or-later
// Source-over of single pixels, for loops where a painter would cost a pass of its own.
#pragma once

#include <QRgb>

#include <cstdint>

namespace zelto {

// `over` on `under`, both premultiplied, rounded to the nearest value. Two channels are worked on at a time.
inline QRgb sourceOver(QRgb over, QRgb under) {
    const std::uint32_t rest = 255U - (over >> 24U);
    const auto scaled = [rest](std::uint32_t pair) {  // each half * rest / 255
        const std::uint32_t product = pair * rest + 0x0080'0080U;
        return ((product + ((product >> 8U) & 0x00FF'00FFU)) >> 8U) & 0x00FF'00FFU;
    };
    return over + (scaled(under & 0x00FF'00FFU) | (scaled((under >> 8U) & 0x00FF'00FFU) << 8U));
}

}  // namespace zelto
