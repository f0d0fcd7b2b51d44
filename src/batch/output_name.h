// SPDX-License-Identifier: GPL-3.0-or-later
// Where the output of a photo goes: its name, extension and folder. Nothing is created, and only the functions that
// say so look at the disk; whether a name is still free is output_plan.h's. Whatever a pattern or a path holds, no
// output leads out of the output folder. Any thread.
#pragma once

#include "batch/destination_map.h"
#include "batch/rename_pattern.h"
#include "records/output_options.h"

#include <QDate>
#include <QString>

namespace zelto {

// What the place of one output depends on.
struct OutputPlace {
    QString sourcePath;
    qint64 row = 0;  // in the photo list, from 0; unchecked photos count
    QDate today;
    qint64 number = 0;  // appended to the name to keep it apart from another's; 0 for none
    QString name =
        {};  // where it had to be taken from the photo; empty for what the options and the rest tell
};

// Whether all photos become pages of one PDF. Every other format hides the box that asks for it, so it counts with
// that format only.
bool combinesIntoOnePdf(const OutputOptions& options);

// With its dot: the source's own in lower case, "jpg" where its kind cannot be written, or the chosen one as it stands.
// "." where the source has none.
QString outputExtension(const QString& sourcePath, const OutputOptions& options);

// The file name without its extension: the source's or the rename pattern filled in, then the number.
QString outputName(const OutputPlace& place, const OutputOptions& options);

// Whether names are made of what the photos hold, so that they are to be settled before a run: OutputPlace::name.
bool takesNamesFromPhotos(const OutputOptions& options);
// The name to settle; `macros` as renameContext() makes it. The source's where nothing came of the pattern.
QString nameFromPhoto(const NamedPhoto& photo, const OutputOptions& options, const MacroContext& macros);

// The folder the output of a photo goes to, by the resolved `destinations` where the structure is kept.
QString outputFolder(const QString& sourcePath, const OutputOptions& options,
                     const FolderDestinations& destinations);

// Folder, name and extension together.
QString outputPath(const OutputPlace& place, const OutputOptions& options,
                   const FolderDestinations& destinations);

// Whether something has this path already, be it a folder or a link that leads nowhere. Looks at the disk.
bool isTaken(const QString& path);

// Looks at the disk: the first of WatermarkedPhotos.pdf, WatermarkedPhotos1.pdf, WatermarkedPhotos2.pdf, ... that
// `folder` does not hold.
QString combinedPdfPath(const QString& folder);

}  // namespace zelto
