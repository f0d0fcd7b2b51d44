// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_text.h"

#include "metadata/windows1252.h"

#include <QStringDecoder>

namespace zelto {

QString metadataText(QByteArray bytes) {
    bytes.truncate(LongestMetadataText);
    if (const qsizetype end = bytes.indexOf('\0'); end >= 0) bytes.truncate(end);
    while (!bytes.isEmpty() && bytes.back() == ' ') bytes.chop(1);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(bytes);
    if (!utf8.hasError()) return text;
    QString western;
    for (const char byte : bytes) western += windows1252Character(static_cast<unsigned char>(byte));
    return western;
}

}  // namespace zelto
