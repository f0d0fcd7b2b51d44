// SPDX-License-Identifier: GPL-3.0-or-later
// Taking paths apart and putting them together as plain text, with '/' between their components: nothing is
// looked up on disk, and neither letter case nor symbolic links nor ".." are resolved. Any thread.
#pragma once

#include <QString>

namespace zelto {

// What stands behind the last '/', trailing ones left aside: "a.jpg" for "/p/a.jpg"; "/" for the root.
QString lastPathComponent(const QString& path);

// The path without its last component and the separators before it: "/p" for "/p/a.jpg", "/" for "/a.jpg", ""
// for "a.jpg".
QString withoutLastPathComponent(const QString& path);

// `folder` and `path` with exactly one separator between them.
QString joinedPath(const QString& folder, const QString& path);

// The extension of a file name, without its dot and in its own letter case; empty for ".hidden", "name" and
// "name.".
QString pathExtension(const QString& fileName);

// A file name without its extension and the dot before that.
QString withoutPathExtension(const QString& fileName);

}  // namespace zelto
