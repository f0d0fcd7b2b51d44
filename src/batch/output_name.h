// SPDX-License-Identifier: GPL-3.0-or-later
// Where the output of a photo goes: its name, extension and folder. Nothing is created or looked up on disk,
// except by combinedPdfPath; an existing file of the same name is meant to be replaced. Whatever a pattern or
// a path holds, no output leads out of the output folder. Any thread.
#pragma once

#include "batch/destination_map.h"
#include "records/macro.h"
#include "records/output_options.h"

#include <QDate>
#include <QList>
#include <QString>

namespace zelto {

// What the place of one output depends on.
struct OutputPlace {
    QString sourcePath;
    qint64 row = 0;  // in the photo list, from 0; unchecked photos count
    QDate today;
};

// The macros a rename pattern may hold, in the order they are filled in.
QList<Macro> renameMacros();

// With its dot: the source's own in lower case, or the chosen one as it stands. "." where the source has
// none.
QString outputExtension(const QString& sourcePath, const OutputOptions& options);

// The file name without its extension: the source's, or the rename pattern filled in.
QString outputName(const OutputPlace& place, const OutputOptions& options);

// The folder the output of a photo goes to, by the resolved `destinations` where the structure is kept.
QString outputFolder(const QString& sourcePath, const OutputOptions& options,
                     const FolderDestinations& destinations);

// Folder, name and extension together.
QString outputPath(const OutputPlace& place, const OutputOptions& options,
                   const FolderDestinations& destinations);

// The first of WatermarkedPhotos.pdf, WatermarkedPhotos1.pdf, WatermarkedPhotos2.pdf, ... that `folder` does
// not hold.
QString combinedPdfPath(const QString& folder);

}  // namespace zelto
