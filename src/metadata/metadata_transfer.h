// SPDX-License-Identifier: GPL-3.0-or-later
// Carries the metadata of a photo into its written output. Any thread; several outputs at a time, but one output by
// one thread.
#pragma once

#include "metadata/exiftool_pool.h"
#include "metadata/metadata_arguments.h"
#include "pictures/picture_writer.h"
#include "platform/result.h"

#include <chrono>

namespace zelto {

// How long exiftool may take for one output.
inline constexpr std::chrono::milliseconds MetadataTimeout = std::chrono::seconds(60);

// Whether outputs of `format` are given metadata at all.
bool takesMetadata(PictureFormat format);

// Blocks until the output has its metadata. Where an output replaces the photo it is made from, keep a KeptFile of
// the photo before writing and name its path as the source. Error: ErrorCode::ProgramFailed, or ErrorCode::NotFound
// or ErrorCode::CannotWrite for the files; the output is then as it was written, whole and without metadata.
Result<void> CopyExifDataTo(const MetadataRequest& request, ExiftoolPool& pool,
                            std::chrono::milliseconds timeout = MetadataTimeout);

}  // namespace zelto
