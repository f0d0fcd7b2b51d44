// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG photos whose blocks without marks are kept as they are: which photos of a run those are, and making them. How it
// is done is src/pictures/jpeg_rewriter.h's business.
#pragma once

#include "platform/result.h"
#include "records/output_options.h"
#include "render/photo_scene.h"

#include <QByteArray>

namespace zelto {

struct LosslessPhoto {
    PhotoScene scene;  // without a picture
    QByteArray file;   // with its colour profile and no other metadata
};

// The photo of `request` with the layers of its stack, for an output that is a JPEG. Error: why it has to be encoded as
// a whole, for the user. Throws std::bad_alloc. Any thread.
Result<LosslessPhoto> makeLosslessPhoto(const PhotoRequest& request, const OutputOptions& options);

}  // namespace zelto
