// SPDX-License-Identifier: GPL-3.0-or-later
// A durable reference to a file or folder, as bytes that preferences and files can keep. Any thread.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace zelto {

// The reference of `path`: its absolute path in UTF-8.
QByteArray fileReference(const QString& path);

// The absolute path of a reference; nothing when the bytes are none or nothing exists there any more.
std::optional<QString> resolveFileReference(const QByteArray& reference);

}  // namespace zelto
