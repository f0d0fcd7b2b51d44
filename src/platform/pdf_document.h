// SPDX-License-Identifier: GPL-3.0-or-later
// A PDF of pictures, one a page. Each page is written out as it is added, so a document of a thousand photos
// costs no more memory than its largest page, compressed. Where the bytes go is the caller's: a buffer, or a
// WholeFile, which makes abandoning an unfinished document safe. One document is used by one thread at a
// time.
//
// The pictures are embedded as JPEG with whole chroma at a quality that shows no loss, whatever quality the
// JPEG files of a run have: a lossless 24-megapixel page takes about five times the room. Transparency is
// kept lossless beside the colours.
#pragma once

#include "platform/result.h"

#include <QImage>

#include <vector>

class QIODevice;

namespace zelto {

class PdfDocument {
  public:
    // `out` is open for writing and outlives the document.
    explicit PdfDocument(QIODevice& out) : out_(out) {}
    PdfDocument(const PdfDocument&) = delete;
    PdfDocument& operator=(const PdfDocument&) = delete;

    // Adds a page of the picture's size, one point a pixel, and draws the picture (RGB32 or premultiplied
    // ARGB32) over all of it. Error: ErrorCode::InvalidValue for a picture without pixels or with a side over
    // 65,500 pixels: the page is left out and the document may go on; ErrorCode::CannotWrite: nothing more
    // can be added.
    Result<void> addPage(const QImage& picture);

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
