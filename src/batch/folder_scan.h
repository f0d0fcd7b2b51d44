// SPDX-License-Identifier: GPL-3.0-or-later
// Finding the photos of a folder by their names. Files are not opened, so a folder called "trip.jpg" is found
// as well; a GIF never is, though the format can be chosen. Any thread.
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace zelto {

// The formats ticked for a scan.
struct ScanFormats {
    bool Jpeg = true;
    bool Png = true;
    bool Tiff = true;
    bool Gif = true;
    bool Bmp = true;
};

// The extensions of the ticked formats, each with its dot and a semicolon behind it: ".jpg;.jpeg;.png;".
QString GetExtensionList(const ScanFormats& formats);

// Whether a scan for `extensionList` takes a file of this name.
bool isScannedName(const QString& fileName, const QString& extensionList);

// Asked now and then, with the number of photos found so far, whether a scan is to go on.
using ScanGoesOn = std::function<bool(qsizetype found)>;

// The paths found, as `folder` + "/" + the path below it, ordered by Unicode value so that every machine sees
// the same list: first those in the folder itself, then those of its sub-folders, each folder before the
// next. Symbolic links to folders are not followed, sub-folders that cannot be read are passed over. A scan
// that is not to go on returns what it has found. Error: ErrorCode::NotFound where the folder itself cannot be
// listed.
Result<QStringList> ImportImagesFromFolder(const QString& folder, bool includeSubFolders,
                                           const QString& extensionList, const ScanGoesOn& goesOn = {});

}  // namespace zelto
