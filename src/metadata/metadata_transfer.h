// SPDX-License-Identifier: GPL-3.0-or-later
// Carries the metadata of a photo into its output before that is written. exiftool works on a private stand-in, never on
// a file of the user's, and what it leaves there is looked at before it is used. The thumbnail and other small pictures
// that come with the metadata are made anew from the output's picture: copied, they would show the photo unmarked.
//
//     ExiftoolPool pool(2);
//     MetadataTransfer transfer(pool);
//     Result<QByteArray> file = transfer.CopyExifDataTo(encoded, picture, {{}, "/photos/a.jpg", exif_data::IncludeAll});
#pragma once

#include "metadata/exiftool_pool.h"
#include "metadata/metadata_arguments.h"
#include "pictures/picture_writer.h"
#include "platform/private_folder.h"
#include "platform/result.h"

#include <QByteArray>
#include <QImage>

#include <chrono>
#include <functional>
#include <mutex>
#include <optional>

namespace zelto {

// How long exiftool may take for one output.
inline constexpr std::chrono::milliseconds MetadataTimeout = std::chrono::seconds(60);

// How outputs of a format are given metadata.
enum class MetadataWay {
    None,
    IntoFile,  // CopyExifDataTo() puts them into the encoded file
    AsBlocks   // blocksFor() makes the blocks that its encoder is given
};
MetadataWay metadataWay(PictureFormat format);

// Any thread, several outputs at a time.
class MetadataTransfer {
  public:
    // `pool` must outlive it.
    explicit MetadataTransfer(ExiftoolPool& pool, std::chrono::milliseconds timeout = MetadataTimeout)
        : pool_(pool), timeout_(timeout) {}

    // The bytes of `output`, an encoded JPEG or TIFF file that shows `picture`, with the metadata that `request` asks
    // for (its own `output` is not looked at). Blocks. Error: ErrorCode::ProgramFailed, or ErrorCode::NotFound or
    // ErrorCode::CannotWrite for the source and the stand-in.
    Result<QByteArray> CopyExifDataTo(const QByteArray& output, const QImage& picture,
                                      MetadataRequest request);
    // The same with a picture that is only made where one is needed, and need not be larger than a screen.
    Result<QByteArray> CopyExifDataTo(const QByteArray& output, const std::function<QImage()>& picture,
                                      MetadataRequest request);

    // The same for an output of another kind that is yet to be encoded from `picture`: exiftool fills a tiny WebP file,
    // and the Exif and XMP blocks are taken from that. IPTC has no place in such files.
    Result<MetadataBlocks> blocksFor(const QImage& picture, MetadataRequest request);

  private:
    Result<QString> privatePath();
    // What exiftool makes of `standIn`, with nothing in it that the request leaves out, and small pictures of `picture`.
    Result<QByteArray> filled(const QByteArray& standIn, const std::function<QImage()>& picture,
                              MetadataRequest request);

    ExiftoolPool& pool_;
    const std::chrono::milliseconds timeout_;
    std::mutex mutex_;  // guards everything below
    std::optional<PrivateFolder> folder_;
    int lastNumber_ = 0;
};

}  // namespace zelto
