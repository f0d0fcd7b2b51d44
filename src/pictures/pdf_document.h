// SPDX-License-Identifier: GPL-3.0-or-later
// A PDF of pictures, one per page. Each page is written out as it is added, so a document of a thousand photos
// costs no more memory than its largest page, compressed. Compressing a page is most of the work and may be
// done ahead, on any thread. Where the bytes go is the caller's: a buffer, or a
// WholeFile, which makes abandoning an unfinished document safe. One document is used by one thread at a
// time.
//
// The pictures are embedded as JPEG with whole chroma at a quality that shows no loss, whatever quality the
// JPEG files of a run have: a lossless 24-megapixel page takes about five times the room. Transparency is
// kept lossless beside the colours.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <vector>

class QIODevice;

namespace zelto {

// A picture made ready to be a page.
struct PdfPage {
    QSize size;          // pixels
    QByteArray colours;  // a JPEG file
    QByteArray alpha;    // one byte per pixel as a zlib stream; empty for an opaque picture

    qint64 bytes() const { return colours.size() + alpha.size(); }
};

// The page of `picture` (RGB32 or premultiplied ARGB32). Error: ErrorCode::InvalidValue for a picture without
// pixels or with a side over 65,500 pixels. Any thread.
Result<PdfPage> encodePdfPage(const QImage& picture);

class PdfDocument {
  public:
    // `out` is open for writing and outlives the document.
    explicit PdfDocument(QIODevice& out) : out_(out) {}
    PdfDocument(const PdfDocument&) = delete;
    PdfDocument& operator=(const PdfDocument&) = delete;

    // Adds a page of the picture's size, one point per pixel, and draws the picture over all of it. Error:
    // ErrorCode::CannotWrite: nothing more can be added.
    Result<void> addPage(const PdfPage& page);

    // Completes the document. Without it, what was written is no PDF. ErrorCode::InvalidValue for one without
    // pages.
    Result<void> finish();

    int pageCount() const { return static_cast<int>(pages_.size()); }

  private:
    // Object numbers count from 1; an object's offset is 0 until it is begun.
    int newObject();
    void begin(int object);
    void write(const QByteArray& bytes);
    void writeStream(int object, const QByteArray& dictionary, const QByteArray& data);
    Result<void> outcome() const;

    QIODevice& out_;
    qint64 written_ = 0;
    bool failed_ = false;
    std::vector<qint64> offsets_;
    std::vector<int> pages_;
};

}  // namespace zelto
