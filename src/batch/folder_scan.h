// SPDX-License-Identifier: GPL-3.0-or-later
// Finding the photos of a folder by their names. Files are not opened, so a folder called "trip.jpg" is found
// as well; a GIF never is, though the format can be chosen. Any thread.
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace zelto {

// The formats ticked for a scan.
struct ScanFormats {
    bool Jpeg = true;
    bool Png = true;
    bool Tiff = true;
    bool Gif = true;
    bool Bmp = true;
    bool Heic = false;
    bool Avif = false;
    bool Webp = false;
    bool Jxl = false;
    bool Raw = false;  // of cameras: their previews
};

// The extensions of the ticked formats, each with its dot and a semicolon behind it: ".jpg;.jpeg;.png;".
QString GetExtensionList(const ScanFormats& formats);

// Whether a scan for `extensionList` takes a file of this name.
bool isScannedName(const QString& fileName, const QString& extensionList);

// Asked now and then, with the number of photos found so far, whether a scan is to go on.
using ScanGoesOn = std::function<bool(qsizetype found)>;

// Something a scan came across that the user should know.
struct ScanProblem {
    QString path;
    QString text;  // of a sentence that begins with the path
};

struct FolderScan {
    // As `folder` + "/" + the path below it, ordered by Unicode value so that every machine sees the same list: first
    // those in the folder itself, then those of its sub-folders, each folder before the next.
    QStringList photos;
    // Folders that cannot be read, and photos among those found that cannot be opened: links that lead nowhere, names
    // that are not UTF-8 (whose paths have U+FFFD for what is no text).
    std::vector<ScanProblem> problems;
};

// The problem with a photo whose name the system has in bytes that are no text.
ScanProblem nameIsNoText(const QString& path);

// Symbolic links to folders are not followed. A scan that is not to go on returns what it has found. Error:
// ErrorCode::NotFound where the folder itself cannot be listed.
Result<FolderScan> scanFolder(const QString& folder, bool includeSubFolders, const QString& extensionList,
                              const ScanGoesOn& goesOn = {});

// The photos of such a scan alone.
Result<QStringList> ImportImagesFromFolder(const QString& folder, bool includeSubFolders,
                                           const QString& extensionList, const ScanGoesOn& goesOn = {});

}  // namespace zelto
