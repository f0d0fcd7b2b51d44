// SPDX-License-Identifier: GPL-3.0-or-later
// The photo filters: whole-picture colour treatments, chosen by number. The work of one call is spread over the cores.
#pragma once

#include <QImage>
#include <QString>

namespace zelto {

// The number of the black-and-white filter, which logos use too.
inline constexpr int GrayScaleFilter = 8;

// `picture` (sRGB; RGB32 or premultiplied ARGB32) with filter `number`; alpha is kept. A number without an
// operation gives the picture as it is. Move the picture in: it is then changed in place.
QImage ApplyFilter(int number, QImage picture);

// The name shown for a filter number; "None" for a number without an operation.
QString GetFilterName(int number);

}  // namespace zelto
