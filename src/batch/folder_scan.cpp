// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/folder_scan.h"

#include "pictures/picture_names.h"
#include "platform/path_parts.h"
#include "platform/words.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

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
    FormatPiece{&ScanFormats::Heic, QLatin1String(".heic;.heif;")},
    FormatPiece{&ScanFormats::Avif, QLatin1String(".avif;")},
    FormatPiece{&ScanFormats::Webp, QLatin1String(".webp;")},
    FormatPiece{&ScanFormats::Jxl, QLatin1String(".jxl;")},
};

// How many entries of a folder are listed between two questions whether to go on.
constexpr int EntriesPerQuestion = 500;

// Walks the folders by the bytes of their names, which need not be text.
class Scan {
  public:
    Scan(bool includeSubFolders, const QString& extensionList, const ScanGoesOn& goesOn)
        : includeSubFolders_(includeSubFolders), extensionList_(extensionList), goesOn_(goesOn) {}

    void visit(const std::filesystem::path& folder, const QString& shownFolder) {
        const std::vector<Entry> entries = listed(folder, shownFolder);
        for (const Entry& entry : entries) {
            if (!isScannedName(entry.name, extensionList_)) continue;
            scan_.photos.append(shownFolder + QLatin1Char('/') + entry.name);
            tellTrouble(entry, scan_.photos.last());
        }
        if (!includeSubFolders_) return;
        for (const Entry& entry : entries) {
            if (entry.type != std::filesystem::file_type::directory) continue;
            if (!goesOn()) return;
            visit(entry.path, shownFolder + QLatin1Char('/') + entry.name);
        }
    }

    FolderScan take() { return std::move(scan_); }

  private:
    struct Entry {
        QString name;  // with U+FFFD for what is no text
        std::filesystem::path path;
        std::filesystem::file_type type =
            std::filesystem::file_type::unknown;  // of the entry, not of a link's target
    };

    std::vector<Entry> listed(const std::filesystem::path& folder, const QString& shownFolder) {
        std::vector<Entry> entries;
        std::error_code error;
        for (std::filesystem::directory_iterator next(folder, error), end; !error && next != end;
             next.increment(error)) {
            std::error_code ignored;
            entries.push_back({QString::fromStdString(next->path().filename().string()), next->path(),
                               next->symlink_status(ignored).type()});
            if (entries.size() % EntriesPerQuestion == 0 && !goesOn()) break;
        }
        if (error) {
            const QString reason = QString::fromStdString(error.message());
            scan_.problems.push_back({shownFolder, Words::tr("the folder cannot be read: %1").arg(reason)});
        }
        std::sort(entries.begin(), entries.end(),
                  [](const Entry& a, const Entry& b) { return a.name < b.name; });
        return entries;
    }

    void tellTrouble(const Entry& entry, const QString& photo) {
        const std::string bytes = entry.path.string();
        if (QString::fromStdString(bytes).toStdString() != bytes) {
            scan_.problems.push_back(nameIsNoText(photo));
        }
        std::error_code error;
        if (entry.type == std::filesystem::file_type::symlink && !std::filesystem::exists(entry.path, error))
            scan_.problems.push_back({photo, Words::tr("the link leads nowhere")});
    }

    bool goesOn() const { return !goesOn_ || goesOn_(scan_.photos.size()); }

    const bool includeSubFolders_;
    const QString& extensionList_;
    const ScanGoesOn& goesOn_;
    FolderScan scan_;
};

}  // namespace

QString GetExtensionList(const ScanFormats& formats) {
    QString list;
    for (const FormatPiece& format : FormatPieces) {
        if (formats.*format.ticked) list += format.piece;
    }
    if (formats.Raw) {
        for (const QString& extension : rawExtensions()) list += u'.' + extension + u';';
    }
    return list;
}

bool isScannedName(const QString& fileName, const QString& extensionList) {
    const QString extension = pathExtension(fileName);
    return isScannedExtension(extension) &&
           extensionList.contains(QLatin1Char('.') + extension, Qt::CaseInsensitive);
}

ScanProblem nameIsNoText(const QString& path) {
    return {path, Words::tr("the name is not UTF-8 text, so the photo cannot be opened; rename it")};
}

Result<FolderScan> scanFolder(const QString& folder, bool includeSubFolders, const QString& extensionList,
                              const ScanGoesOn& goesOn) {
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isReadable() || !info.isExecutable()) {
        return fail(ErrorCode::NotFound, Words::tr("The folder “%1” cannot be read.").arg(folder), folder);
    }
    Scan scan(includeSubFolders, extensionList, goesOn);
    scan.visit(QFile::encodeName(folder).toStdString(), folder);
    return scan.take();
}

Result<QStringList> ImportImagesFromFolder(const QString& folder, bool includeSubFolders,
                                           const QString& extensionList, const ScanGoesOn& goesOn) {
    return scanFolder(folder, includeSubFolders, extensionList, goesOn).map([](const FolderScan& scan) {
        return scan.photos;
    });
}

}  // namespace zelto
