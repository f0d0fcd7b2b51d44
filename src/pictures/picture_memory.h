// SPDX-License-Identifier: GPL-3.0-or-later
// Memory for whole photos.
#pragma once

#include "platform/result.h"

#include <QImage>
#include <QSize>

#include <cstdlib>
#include <memory>

namespace zelto {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using LargeMemory = std::unique_ptr<uchar[], FreeMemory>;

// `bytes` bytes, not yet filled, on huge pages where the system has them: a photo of 24 megapixels would otherwise cost
// some 24000 page faults before its first pixel is worked on, a quarter of the time it takes to decode one. Throws
// std::bad_alloc. Any thread.
LargeMemory largeMemory(std::size_t bytes);

// A picture of `size` pixels in `format`, not yet filled; null for an empty size. Throws std::bad_alloc where there is
// not enough memory: the readers and writers of pictures turn that into an error. Large ones are
// largeMemory(). Any thread.
QImage newPicture(QSize size, QImage::Format format);

// `picture`, which a conversion made of a picture with pixels. Throws std::bad_alloc where it is null: conversions fail
// for no other reason.
QImage converted(QImage picture);

// What the user is told where memory did not suffice for the picture at `path`, which may be empty.
tl::unexpected<Error> outOfMemory(const QString& path = {});

}  // namespace zelto
