// SPDX-License-Identifier: GPL-3.0-or-later
// What a run does with one photo, in two steps: preparing it, which only computes and may go ahead on any
// thread, and committing it, which writes and happens in list order. OutputWriter is the one that writes
// watermarked photos.
#pragma once

#include "batch/jpeg_way.h"
#include "pictures/pdf_document.h"
#include "platform/result.h"
#include "records/photo_warning.h"

#include <QByteArray>
#include <QDateTime>
#include <QImage>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

namespace zelto {

// One photo of a run.
struct PhotoTask {
    qint64 row = 0;       // in the photo list, from 0
    qint64 listSize = 1;  // photos in the list
    QString source;
    QString output;     // the path to write; of no meaning for a page of the combined PDF
    QDateTime now;      // the moment its dates speak of
    qint64 memory = 0;  // bytes that preparing it takes, as memoryNeeded() has told
};

// A photo that only has to be written, or one without a file whose warnings are why it is not to be.
struct PreparedPhoto {
    QSize size;                            // written pixels
    QByteArray file;                       // the complete file, or
    std::optional<PdfPage> page;           // a page of the combined PDF
    std::optional<qint64> lastAutoNumber;  // the running number to remember once the photo is committed
    std::vector<PhotoWarning> warnings;
    std::optional<JpegWay> jpeg;  // of a JPEG, where untouched blocks were to be kept
    QImage glance;                // a small copy for whoever watches the run; of a few photos a second only

    qint64 bytes() const { return file.size() + (page ? page->bytes() : 0); }
};

class PhotoProcessor {
  public:
    virtual ~PhotoProcessor() = default;

    // A generous guess of the bytes prepare() will hold at its peak. Any thread.
    virtual qint64 memoryNeeded(const PhotoTask& task) = 0;

    // Several photos are prepared at once, on any thread. An error of ErrorCode::Damaged, Unsupported or OutOfMemory
    // has a message for the user; every other is told as a general failure. May throw, which is a failure as well.
    virtual Result<PreparedPhoto> prepare(const PhotoTask& task) = 0;

    // Writes the photo. One call at a time, in list order; errors as prepare().
    virtual Result<void> commit(const PhotoTask& task, PreparedPhoto photo) = 0;

    // Completes the combined PDF and returns its path; an empty one when there is none to complete. Called
    // once, after the last commit of a run that was not broken off. May throw.
    virtual Result<QString> finishCombinedPdf() = 0;

    // Goes on where another processor of the same kind left off. Called before anything else.
    virtual void takeOver(PhotoProcessor& /*earlier*/) {}

    // Called after the last commit of a run, or of the part of it up to a pause.
    virtual void settle() = 0;

    // The run has been cancelled: what may take long is given up within seconds. Any thread, at any time.
    virtual void interrupt() {}
};

}  // namespace zelto
