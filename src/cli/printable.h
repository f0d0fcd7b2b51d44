// SPDX-License-Identifier: GPL-3.0-or-later
// What may be shown on a terminal of a text that comes from elsewhere: a file's name, a setting's, a tag's value.
#pragma once

#include <QByteArray>
#include <QString>

namespace zelto {

// `text` with everything that could drive a terminal, forge a line or turn the direction of writing shown as \uXXXX:
// the control characters C0, DEL and C1, the line and paragraph separators, and the marks, embeddings, overrides and
// isolates of direction.
QString printable(const QString& text);

// A JSON document in which DEL and C1 are escaped as well, which JSON itself does not ask for.
QByteArray printableJson(const QByteArray& document);

}  // namespace zelto
