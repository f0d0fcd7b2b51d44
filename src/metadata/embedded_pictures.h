// SPDX-License-Identifier: GPL-3.0-or-later
// The small pictures that cameras and programs put into the metadata of a photo: thumbnails, makers' previews. Copied
// into an output they would show the photo without its watermarks. Any thread.
#pragma once

#include "metadata/output_parts.h"

#include <QByteArray>
#include <QImage>

#include <functional>
#include <vector>

namespace zelto {

// Puts a small version of the picture that `picture` gives, which is only asked where it is needed, in the place of
// each JPEG picture that lies in the parts of `file` that are metadata. It takes no more bytes than the one before and
// zeros fill the rest, so that nothing around it moves; where not even the smallest fits, there are only zeros.
// Pictures of other kinds are left alone.
void replaceEmbeddedPictures(QByteArray& file, const std::vector<ByteRange>& metadata,
                             const std::function<QImage()>& picture);

// Whether a JPEG or PNG picture stands in `metadata` written as text, as XMP has it.
bool holdsPictureAsText(QByteArrayView metadata);

}  // namespace zelto
