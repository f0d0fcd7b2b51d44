// SPDX-License-Identifier: GPL-3.0-or-later
// Marks on a JPEG photo that cost the rest of it nothing. A JPEG is made of blocks of 8 x 8 coefficients that do not
// know of each other: those whose pixels a mark changes are decoded, drawn on and encoded with the photo's own tables
// and sampling, and all others go into the new file as they are.
//
//     Result<std::unique_ptr<JpegRewriter>> jpeg = JpegRewriter::open(path);
//     if (!jpeg) return jpeg.error().message;   // why this photo has to be encoded as a whole
//     Result<QByteArray> file = (*jpeg)->rewrite({logo, text}, [&](QImage& part, QPoint corner) { ... });
//
// What stays: quantisation tables, sampling, baseline or progressive, restart intervals, an Adobe marker, the colour
// profile (a camera's Adobe RGB that it only names in Exif is embedded). The photo is turned upright as coefficients.
// All other metadata is left out. Where Huffman tables of the source have no code for what a mark needs they are
// completed (jpeg_huffman.h): the best ones for the new file would take a second look at all coefficients.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <functional>
#include <memory>
#include <vector>

namespace zelto {

class JpegRewriter {
  public:
    // `part` shows the pixels of the upright photo from `corner` on, or is transparent for a photo whose colours are not
    // sRGB. What is drawn on it is sRGB in any case.
    using DrawMarks = std::function<void(QImage& part, QPoint corner)>;

    // Error: ErrorCode::Unsupported or ErrorCode::Damaged, saying why this photo cannot be done so: it is no JPEG, is
    // damaged, stores other colours than YCbCr or grey, has sampling in broken steps, takes too much memory, has a
    // profile that colours cannot be converted to, or has to be turned and does not consist of whole sampling units
    // along a side that is reversed.
    static Result<std::unique_ptr<JpegRewriter>> open(const QString& path);
    static Result<std::unique_ptr<JpegRewriter>> open(std::unique_ptr<QIODevice> file);
    ~JpegRewriter();
    Q_DISABLE_COPY_MOVE(JpegRewriter)

    QSize size() const;  // pixels, upright
    double dpiX() const;
    double dpiY() const;

    // The new file; to be called once. `areas` hold every pixel that may be drawn on, and may overlap and reach out of
    // the photo; `draw` is called for parts of them. In a grey photo marks become grey. Error: as open(), for what only
    // reading shows. Throws std::bad_alloc, and what `draw` throws.
    Result<QByteArray> rewrite(const std::vector<QRect>& areas, const DrawMarks& draw);

  private:
    class Work;
    explicit JpegRewriter(std::unique_ptr<Work> work);
    std::unique_ptr<Work> work_;
};

}  // namespace zelto
