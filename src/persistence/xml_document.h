// SPDX-License-Identifier: GPL-3.0-or-later
// The XML of every file of this folder: one element per value, the value as its text. Files may come from
// strangers: a document type declaration is refused, so no entity is ever expanded, and size, depth and
// number of elements are bounded. What the values mean is left to the file's own reader. Any thread.
//
// Texts may hold characters that XML has no way to write: control characters and halves of surrogate pairs. An element
// with such a text has the attribute Escaped="1", and its text holds them as "\xHHHH", with each backslash doubled. So
// every text reads back as it was, and the text of an element without the attribute is taken as it stands.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include <functional>
#include <vector>

namespace zelto {

// The largest document read or written, in bytes.
inline constexpr qint64 MaximumXmlSize = qint64{512} << 20;

// One element: its own text (that of its children is theirs; never null) and its child elements in document order.
struct XmlElement {
    QString name;
    QString type;  // the attribute "Type" or "type"; null when it has neither
    QString text;
    qint64 line = 0;
    std::vector<XmlElement> children;
};

// The document in UTF-8 whose root element is `root`; `content` writes what it holds.
QByteArray writeXml(QLatin1String root, const std::function<void(QXmlStreamWriter&)>& content);

// Writes an element that holds `text`.
void writeXmlElement(QXmlStreamWriter& writer, QLatin1String name, const QString& text);

// The root element of a document; `fileName` stands for the file in messages. Error: ErrorCode::InvalidFile,
// naming the file, the line and what is wrong there; that too when the root's name is not `root`, compared
// without regard to letter case.
Result<XmlElement> readXml(const QByteArray& document, QLatin1String root, const QString& fileName);

// The content of the file at `path`. Error: ErrorCode::NotFound when there is no such file (a folder is
// none), ErrorCode::InvalidFile when it cannot be read or exceeds MaximumXmlSize.
Result<QByteArray> readXmlFile(const QString& path);

// The error of an element: "FILE, line N: WHAT".
tl::unexpected<Error> failAtLine(const QString& fileName, qint64 line, const QString& what);

// Values as text: "True" or "False" in any letter case, else a whole number that is not 0. Numbers too large
// for their type are the nearest it holds; `fallback` stands for texts that are no number.
bool toBool(const QString& text, bool fallback);
qint64 toInteger(const QString& text, qint64 fallback);

}  // namespace zelto
