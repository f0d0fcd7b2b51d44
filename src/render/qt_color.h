// SPDX-License-Identifier: GPL-3.0-or-later
// Record colours in Qt's terms.
#pragma once

#include "records/color.h"

#include <QColor>

#include <algorithm>

namespace zelto {

// The same colour for a painter. Components outside 0..1, which only a damaged file holds, are brought back
// into it.
inline QColor toQColor(const Color& color) {
    const auto unit = [](float component) { return component > 0.0F ? std::min(component, 1.0F) : 0.0F; };
    return QColor::fromRgbF(unit(color.Red), unit(color.Green), unit(color.Blue), unit(color.Alpha));
}

// A colour that was chosen, in 8 bits a component: a pixel of the same bytes has exactly this colour.
inline Color toColor(const QColor& color) {
    const auto unit = [](int component) { return static_cast<float>(component) / 255.0F; };
    return {unit(color.red()), unit(color.green()), unit(color.blue()), unit(color.alpha())};
}

}  // namespace zelto
