// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/path_parts.h"

namespace zelto {
namespace {

constexpr QLatin1Char Separator('/');

// The length of the path without trailing separators; the root keeps its own.
qsizetype trimmedLength(QStringView path) {
    qsizetype length = path.size();
    while (length > 1 && path[length - 1] == Separator) --length;
    return length;
}

// The position of the dot before a file name's extension; -1 where it has none.
qsizetype extensionDot(const QString& fileName) {
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot > 0 && dot + 1 < fileName.size() ? dot : -1;
}

}  // namespace

QString lastPathComponent(const QString& path) {
    const QStringView trimmed = QStringView(path).left(trimmedLength(path));
    if (trimmed == Separator) return trimmed.toString();
    return trimmed.mid(trimmed.lastIndexOf(Separator) + 1).toString();
}

QString withoutLastPathComponent(const QString& path) {
    const QStringView trimmed = QStringView(path).left(trimmedLength(path));
    const qsizetype separator = trimmed.lastIndexOf(Separator);
    if (separator < 0) return QString();
    const QStringView folder = trimmed.left(separator + 1);
    return folder.left(trimmedLength(folder)).toString();
}

QString joinedPath(const QString& folder, const QString& path) {
    qsizetype start = 0;
    while (start < path.size() && path[start] == Separator) ++start;
    QString joined = folder.left(trimmedLength(folder));
    if (joined.isEmpty()) return path;
    if (start < path.size() && !joined.endsWith(Separator)) joined += Separator;
    return joined += QStringView(path).mid(start);
}

QString pathExtension(const QString& fileName) {
    const qsizetype dot = extensionDot(fileName);
    return dot < 0 ? QString() : fileName.mid(dot + 1);
}

QString withoutPathExtension(const QString& fileName) {
    const qsizetype dot = extensionDot(fileName);
    return dot < 0 ? fileName : fileName.left(dot);
}

}  // namespace zelto
