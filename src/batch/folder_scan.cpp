// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/folder_scan.h"

#include "platform/path_parts.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

struct FormatPiece {
    bool ScanFormats::*ticked;
    QLatin1String piece;
};

constexpr std::array FormatPieces = {
    FormatPiece{&ScanFormats::Jpeg, QLatin1String(".jpg;.jpeg;")},
    FormatPiece{&ScanFormats::Png, QLatin1String(".png;")},
    FormatPiece{&ScanFormats::Tiff, QLatin1String(".tiff;.tif;")},
    FormatPiece{&ScanFormats::Gif, QLatin1String(".gif;")},
    FormatPiece{&ScanFormats::Bmp, QLatin1String(".bmp;")},
};

// ".giff" is meant as it stands: with it no list of GetExtensionList finds a GIF.
constexpr std::array ScannedExtensions = {
    QLatin1String(".jpg"), QLatin1String(".jpeg"), QLatin1String(".giff"), QLatin1String(".tiff"),
    QLatin1String(".tif"), QLatin1String(".png"),  QLatin1String(".bmp"),
};

// How many entries of a folder are listed between two questions whether to go on.
constexpr int EntriesPerQuestion = 500;

class Scan {
  public:
    Scan(bool includeSubFolders, const QString& extensionList, const ScanGoesOn& goesOn)
        : includeSubFolders_(includeSubFolders), extensionList_(extensionList), goesOn_(goesOn) {}

    void visit(const QString& folder) {
        const Entries entries = listed(folder);
        for (const QString& name : entries.names) {
            if (isScannedName(name, extensionList_)) found_.append(folder + QLatin1Char('/') + name);
        }
        for (const QString& name : entries.subFolders) {
            if (!goesOn()) return;
            visit(folder + QLatin1Char('/') + name);
        }
    }

    const QStringList& found() const { return found_; }

  private:
    struct Entries {
        QStringList names;
        QStringList subFolders;
    };

    Entries listed(const QString& folder) {
        Entries entries;
        QDirIterator iterator(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (iterator.hasNext()) {
            iterator.next();
            entries.names.append(iterator.fileName());
            if (includeSubFolders_) {
                const QFileInfo info = iterator.fileInfo();
                if (!info.isSymLink() && info.isDir()) entries.subFolders.append(iterator.fileName());
            }
            if (entries.names.size() % EntriesPerQuestion == 0 && !goesOn()) break;
        }
        std::sort(entries.names.begin(), entries.names.end());
        std::sort(entries.subFolders.begin(), entries.subFolders.end());
        return entries;
    }

    bool goesOn() const { return !goesOn_ || goesOn_(found_.size()); }

    const bool includeSubFolders_;
    const QString& extensionList_;
    const ScanGoesOn& goesOn_;
    QStringList found_;
};

}  // namespace

QString GetExtensionList(const ScanFormats& formats) {
    QString list;
    for (const FormatPiece& format : FormatPieces) {
        if (formats.*format.ticked) list += format.piece;
    }
    return list;
}

bool isScannedName(const QString& fileName, const QString& extensionList) {
    const QString extension = QLatin1Char('.') + pathExtension(fileName).toLower();
    return std::find(ScannedExtensions.begin(), ScannedExtensions.end(), extension) !=
               ScannedExtensions.end() &&
           extensionList.contains(extension, Qt::CaseInsensitive);
}

Result<QStringList> ImportImagesFromFolder(const QString& folder, bool includeSubFolders,
                                           const QString& extensionList, const ScanGoesOn& goesOn) {
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isReadable() || !info.isExecutable()) {
        return fail(ErrorCode::NotFound, QStringLiteral("The folder “%1” cannot be read.").arg(folder),
                    folder);
    }
    Scan scan(includeSubFolders, extensionList, goesOn);
    scan.visit(folder);
    return scan.found();
}

}  // namespace zelto
