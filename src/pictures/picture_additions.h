// SPDX-License-Identifier: GPL-3.0-or-later
// Small operations on whole pictures (RGB32 or premultiplied ARGB32 in, premultiplied ARGB32 out unless nothing had
// to change). Reentrant; any thread. Pictures are taken by value: move one in and no copy is made.
// Null where memory does not suffice.
#pragma once

#include <QImage>

#include <cstdint>

namespace zelto {

// Makes every pixel transparent whose colour is exactly (red, green, blue), components between 0 and 1. The
// comparison is in single precision, byte against component * 255, so a colour that is no whole byte removes nothing.
QImage replaceColor(QImage picture, float red, float green, float blue);

// The picture at `opacity` (0 to 1); itself when that is 1 or more.
QImage imageWithOpacity(QImage picture, double opacity);

// The picture turned counter-clockwise by `degrees` about its centre, on a transparent canvas of the bounding box of
// the turned rectangle, rounded up to whole pixels. Whole quarter turns are exact.
QImage imageRotatedByDegrees(const QImage& picture, std::int64_t degrees);

}  // namespace zelto
