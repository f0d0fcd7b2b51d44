// SPDX-License-Identifier: GPL-3.0-or-later
// Turns photos into their watermarked output files, or into the pages of one combined PDF: the scene is
// composed, resized and encoded in prepare(), and written in commit(), a whole file or none. A stack with a photo
// effect leaves that step's two pictures of the last photo in the user's home folder as well.
#pragma once

#include "batch/photo_processor.h"
#include "metadata/exiftool_pool.h"
#include "metadata/metadata_transfer.h"
#include "platform/kept_file.h"
#include "records/copyright_metadata.h"
#include "records/output_options.h"
#include "records/watermark_stack.h"
#include "render/logo_cache.h"
#include "render/photo_scene.h"

#include <QImage>
#include <QLocale>
#include <QSet>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace zelto {

class OutputWriter : public PhotoProcessor {
  public:
    struct Settings {
        OutputOptions options;
        std::shared_ptr<const WatermarkStack> stack;
        QLocale locale;
        std::optional<CopyRightMetaData> copyright;
        bool strict = false;   // whether a photo with a warning will not be written
        int metadataJobs = 1;  // exiftool programs at a time
        std::chrono::milliseconds metadataTimeout = MetadataTimeout;  // for one output
        // Called on the run's thread when a photo is about to be written, at most twice a second, with what is
        // written scaled down to about a screen.
        std::function<void(qint64 row, const QImage& glance)> showGlance = {};
    };

    explicit OutputWriter(Settings settings);
    ~OutputWriter() override;

    qint64 memoryNeeded(const PhotoTask& task) override;
    Result<PreparedPhoto> prepare(const PhotoTask& task) override;
    Result<void> commit(const PhotoTask& task, PreparedPhoto photo) override;
    // An unfinished PDF leaves no file.
    Result<QString> finishCombinedPdf() override;
    // Takes over the combined PDF that has been begun.
    void takeOver(PhotoProcessor& earlier) override;
    // Writes the effect's pictures too.
    void settle() override;
    void interrupt() override { exiftool_.interrupt(); }

  private:
    struct CombinedPdf;

    bool isGlanceDue(qint64 row);
    Result<void> addPage(const PdfPage& page);
    PhotoRequest requestFor(const PhotoTask& task) const;
    // The photo with its untouched blocks as they are. Error: why that cannot be.
    Result<PreparedPhoto> prepareLossless(const PhotoTask& task);
    void addMetadata(PreparedPhoto& photo, const std::function<QImage()>& picture, double dpi,
                     const QString& source);
    Result<void> writeFile(const PhotoTask& task, const PreparedPhoto& photo);

    const Settings settings_;
    std::mutex glanceMutex_;                            // guards the next two
    std::chrono::steady_clock::time_point nextGlance_;  // not before this moment
    qint64 glanceRow_ = -1;
    const std::shared_ptr<LogoCache> logos_ = std::make_shared<LogoCache>();
    ExiftoolPool exiftool_;
    MetadataTransfer metadata_;  // uses exiftool_
    std::once_flag exiftoolIsExpected_;
    std::unique_ptr<CombinedPdf> combinedPdf_;
    std::optional<KeptFile> effectPhoto_;  // the last photo that went through the effect step
    QSet<QString> startedFolders_;         // made, and cleared of what killed runs have left there
};

}  // namespace zelto
