// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as one line of text: a colour space name, then red, green, blue and alpha from 0 to 1, separated by
// single blanks. Numbers are read and written with a decimal point whatever the locale. Any thread.
#pragma once

#include "records/color.h"

#include <QString>

#include <optional>

namespace zelto {

// The name written in front of every colour. Reading ignores it: all colours are taken as calibrated RGB.
inline constexpr QLatin1String CalibratedRgbColorSpace("NSCalibratedRGBColorSpace");

// The text form with six decimals a component.
QString stringRepresentationofColor(const Color& color);

// The text form used in files: nine significant digits, so that it reads back to the very same components.
QString exactColorText(const Color& color);

// The colour of a text form. Components are clamped to 0..1; one that is not a number is 0. Nothing when there are fewer
// than five tokens; two blanks in a row enclose an empty one. `colorSpace` has no influence.
std::optional<Color> colorFromString(const QString& text,
                                     const QString& colorSpace = CalibratedRgbColorSpace);

// The colour of hexadecimal text, with or without "#": RGB, RGBA, RRGGBB or RRGGBBAA. Five and seven digits
// get a "0" in front, fewer than three are filled up with "0" in front, of more than eight the last eight
// count. Anything else is black.
Color colorWithCSS(const QString& text);

}  // namespace zelto
