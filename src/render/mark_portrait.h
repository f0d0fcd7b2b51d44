// SPDX-License-Identifier: GPL-3.0-or-later
// A small square picture of one watermark by itself, for lists: as large as fits, opaque and untiled, on a ground that
// lets it be seen. Any thread that may lay out text.
#pragma once

#include "records/watermark.h"
#include "render/logo_cache.h"

#include <QImage>
#include <QString>

namespace zelto {

// The record as its portrait shows it: without its name, its place, its opacity and its tiling, so that a drag or a
// click on the eye asks for no other portrait.
Watermark likenessOf(Watermark record);

// `text` is what the record's text or code reads with its macros expanded; of a text only the first letters are drawn.
// `side` is in device pixels. Null where the record draws nothing.
QImage markPortrait(const Watermark& record, const QString& text, int side, LogoCache& logos);

}  // namespace zelto
