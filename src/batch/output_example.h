// SPDX-License-Identifier: GPL-3.0-or-later
// What a run would make of one photo: what the user sees while choosing the output options. Any thread.
#pragma once

#include "batch/destination_map.h"
#include "batch/output_name.h"
#include "records/output_options.h"
#include "records/photo_effects.h"

#include <QSize>
#include <QString>

#include <optional>

namespace zelto {

struct OutputExample {
    QString path;  // of the output file, or of the combined PDF the photo becomes a page of
    QSize size;    // pixels
};

// `photo` is the photo's size in upright pixels (an invalid one gives an invalid size), `effects` its frame, `folders`
// the source folders of the whole photo list. Looks at the disk only for the name of a combined PDF.
OutputExample outputExample(const OutputPlace& place, QSize photo, const OutputOptions& options,
                            const std::optional<PhotoEffects>& effects, const FolderDestinations& folders);

}  // namespace zelto
