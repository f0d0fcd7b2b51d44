// SPDX-License-Identifier: GPL-3.0-or-later
// What a HEIC or AVIF file makes its decoder do, known before the decoder sees the file: it believes whatever the file
// says. Written from ISO/IEC 14496-12 (boxes) and ISO/IEC 23008-12 (items, grids and overlays).
#pragma once

#include <QByteArrayView>

#include <optional>

namespace zelto {

struct HeifMeasure {
    qint64 largest = 0;  // pixels of the largest picture that is coded or put together, 0 where there is none
    qint64 besides = 0;  // pixels of the pictures that are in memory together with it: parts of it, its alpha
};

// Nothing for a file that no program writes: one that takes minutes, because its pictures are put together from the
// same parts again and again; one whose descriptions go in circles, are there twice, or are read in different ways by
// different decoders; one that gives out its bytes many times over. Any thread.
std::optional<HeifMeasure> measureHeif(QByteArrayView file);

}  // namespace zelto
