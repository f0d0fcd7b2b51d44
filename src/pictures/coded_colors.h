// SPDX-License-Identifier: GPL-3.0-or-later
// Colours that a file states by code numbers instead of an ICC profile, as HEIC and AVIF do. The numbers of transfer
// functions are those of ITU-T H.273. Any thread.
#pragma once

#include <QByteArray>
#include <QPointF>

namespace zelto {

// CIE xy, as H.273 has them.
struct CodedPrimaries {
    QPointF red;
    QPointF green;
    QPointF blue;
    QPointF white;
};

// An ICC profile of RGB pixels with these primaries and this transfer function. The video functions that cameras and
// converters name for pictures made on and for sRGB screens (1, 6, 13 to 15, and 2, which names none) all count as
// sRGB's. PQ and HLG end at the white of paper, 203 cd/m²: what shines brighter is clipped. Empty for primaries that
// make no colour space.
QByteArray codedColorsProfile(const CodedPrimaries& primaries, int transfer);

}  // namespace zelto
