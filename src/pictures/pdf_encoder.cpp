// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/pdf_document.h"
#include "pictures/picture_encoders.h"

#include <QBuffer>

namespace zelto {

Result<QByteArray> encodePdf(const QImage& picture, const EncodeOptions&) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PdfDocument document(buffer);
    const Result<void> written =
        encodePdfPage(picture)
            .and_then([&document](const PdfPage& page) { return document.addPage(page); })
            .and_then([&document] { return document.finish(); });
    if (!written) return tl::unexpected(written.error());
    return buffer.data();
}

}  // namespace zelto
