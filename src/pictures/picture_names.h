// SPDX-License-Identifier: GPL-3.0-or-later
// What counts as a picture by its file's name, in each of the places where files are chosen by name. What a file holds
// is found out when it is read. Any thread.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace zelto {

// What file choosers offer, photos and logos alike: "(*.jpg *.JPG *.gif ...)". BMP is not offered; cameras' raw files
// are.
QString chooserPattern();

// Whether a scan of a folder takes files of this extension, given without its dot and in any letter case. GIF is not
// taken ("giff" is).
bool isScannedExtension(QStringView extension);

// Those of cameras' raw files, without their dots.
QStringList rawExtensions();

// The extension that a copy of the same kind has: this one in lower case, or "jpg" for kinds that are read here and
// cannot be written, such as raw files.
QString writtenExtension(QStringView extension);

// Whether the file name is one that some reader of pictures knows: what may be dropped on the window.
bool isPictureName(const QString& path);

}  // namespace zelto
