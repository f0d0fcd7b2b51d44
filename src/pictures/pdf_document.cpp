// SPDX-License-Identifier: GPL-3.0-or-later
// The file structure and the operators are those of ISO 32000-1: objects, a cross-reference table, a trailer.
#include "pictures/pdf_document.h"

#include "pictures/picture_encoders.h"
#include "pictures/picture_rows.h"
#include "platform/whole_file.h"
#include "platform/words.h"

#include <QIODevice>

#include <zlib.h>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

constexpr int PictureQuality = 95;
constexpr int CatalogObject = 1;
constexpr int PageTreeObject = 2;
// Readers may refuse pages with more units than this on a side; larger pages have larger units.
constexpr double LargestPageUnits = 14400.0;

QByteArray number(double value) {
    QByteArray text = QByteArray::number(value, 'f', 6);
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
    return text;
}

QByteArray reference(int object) {
    return QByteArray::number(object) + " 0 R";
}

QByteArray imageDictionary(QSize size, const char* colourSpace, const char* filter) {
    return "/Type /XObject /Subtype /Image /Width " + QByteArray::number(size.width()) + " /Height " +
           QByteArray::number(size.height()) + " /BitsPerComponent 8 /ColorSpace /" + colourSpace +
           " /Filter /" + filter;
}

bool hasTransparentPixels(const QImage& picture) {
    if (!picture.hasAlphaChannel()) return false;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* const row = pixelRow(picture, y);
        if (!std::all_of(row, row + picture.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; }))
            return true;
    }
    return false;
}

// The alpha of every pixel as a zlib stream; empty when memory runs out.
QByteArray deflatedAlpha(const QImage& picture) {
    z_stream stream{};
    if (deflateInit(&stream, Z_BEST_SPEED) != Z_OK) return {};
    QByteArray packed;
    std::vector<uchar> alpha(static_cast<std::size_t>(picture.width()));
    std::vector<uchar> room(65536);
    for (int y = 0; y < picture.height(); ++y) {
        rowAsAlpha(pixelRow(picture, y), picture.width(), alpha.data());
        stream.next_in = alpha.data();
        stream.avail_in = static_cast<uInt>(alpha.size());
        const int flush = y + 1 == picture.height() ? Z_FINISH : Z_NO_FLUSH;
        do {
            stream.next_out = room.data();
            stream.avail_out = static_cast<uInt>(room.size());
            deflate(&stream, flush);
            packed.append(reinterpret_cast<const char*>(room.data()),
                          static_cast<qsizetype>(room.size() - stream.avail_out));
        } while (stream.avail_out == 0);
    }
    deflateEnd(&stream);
    return packed;
}

}  // namespace

Result<PdfPage> encodePdfPage(const QImage& picture) {
    if (picture.isNull()) {
        return fail(ErrorCode::InvalidValue, Words::tr("A picture without pixels cannot be a page."));
    }
    Result<QByteArray> colours = encodeJpegColours(picture, PictureQuality);
    if (!colours) return tl::unexpected(std::move(colours.error()));
    return PdfPage{picture.size(), std::move(*colours),
                   hasTransparentPixels(picture) ? deflatedAlpha(picture) : QByteArray()};
}

Result<void> PdfDocument::addPage(const PdfPage& page) {
    const bool transparent = !page.alpha.isEmpty();
    if (offsets_.empty()) {
        offsets_.resize(PageTreeObject);
        write("%PDF-1.6\n%\xe2\xe3\xcf\xd3\n");
    }
    const int pageObject = newObject();
    const int content = newObject();
    const int image = newObject();
    QByteArray imageEntries = imageDictionary(page.size, "DeviceRGB", "DCTDecode");
    if (transparent) {
        const int mask = newObject();
        writeStream(mask, imageDictionary(page.size, "DeviceGray", "FlateDecode"), page.alpha);
        imageEntries += " /SMask " + reference(mask);
    }
    writeStream(image, imageEntries, page.colours);

    const double unit = std::max(1.0, std::max(page.size.width(), page.size.height()) / LargestPageUnits);
    const QByteArray width = number(page.size.width() / unit);
    const QByteArray height = number(page.size.height() / unit);
    writeStream(content, {}, width + " 0 0 " + height + " 0 0 cm /Picture Do");
    begin(pageObject);
    write("<< /Type /Page /Parent " + reference(PageTreeObject) + " /MediaBox [0 0 " + width + ' ' + height +
          ']');
    if (unit > 1.0) write(" /UserUnit " + number(unit));
    if (transparent) write(" /Group << /S /Transparency /CS /DeviceRGB >>");
    write(" /Resources << /XObject << /Picture " + reference(image) + " >> >> /Contents " +
          reference(content) + " >>\nendobj\n");
    pages_.push_back(pageObject);
    return outcome();
}

Result<void> PdfDocument::finish() {
    if (pages_.empty()) {
        return fail(ErrorCode::InvalidValue, Words::tr("A PDF document needs at least one page."));
    }
    begin(PageTreeObject);
    write("<< /Type /Pages /Count " + QByteArray::number(pageCount()) + " /Kids [");
    for (const int page : pages_) write('\n' + reference(page));
    write("] >>\nendobj\n");
    begin(CatalogObject);
    write("<< /Type /Catalog /Pages " + reference(PageTreeObject) + " >>\nendobj\n");

    const qint64 tableOffset = written_;
    const QByteArray size = QByteArray::number(static_cast<qsizetype>(offsets_.size()) + 1);
    write("xref\n0 " + size + "\n0000000000 65535 f \n");
    for (const qint64 offset : offsets_)
        write(QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n");
    write("trailer\n<< /Size " + size + " /Root " + reference(CatalogObject) + " >>\nstartxref\n" +
          QByteArray::number(tableOffset) + "\n%%EOF\n");
    return outcome();
}

int PdfDocument::newObject() {
    offsets_.push_back(0);
    return static_cast<int>(offsets_.size());
}

void PdfDocument::begin(int object) {
    offsets_[static_cast<std::size_t>(object) - 1] = written_;
    write(QByteArray::number(object) + " 0 obj\n");
}

void PdfDocument::write(const QByteArray& bytes) {
    failed_ = failed_ || !writeAll(out_, bytes);
    written_ += bytes.size();
}

void PdfDocument::writeStream(int object, const QByteArray& dictionary, const QByteArray& data) {
    begin(object);
    write("<< " + dictionary + " /Length " + QByteArray::number(data.size()) + " >>\nstream\n");
    write(data);
    write("\nendstream\nendobj\n");
}

Result<void> PdfDocument::outcome() const {
    if (!failed_) return {};
    return fail(ErrorCode::CannotWrite,
                Words::tr("The PDF document cannot be written: %1").arg(out_.errorString()));
}

}  // namespace zelto
