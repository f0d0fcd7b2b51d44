// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_example.h"

#include "batch/output_size.h"
#include "platform/path_parts.h"

namespace zelto {

OutputExample outputExample(const OutputPlace& place, QSize photo, const OutputOptions& options,
                            const std::optional<PhotoEffects>& effects, const FolderDestinations& folders) {
    const QSize size = photo.isValid() ? writtenSize(photo, options, effects) : QSize();
    if (combinesIntoOnePdf(options)) {
        return {combinedPdfPath(options.OutputPath), size};
    }
    FolderDestinations destination;
    if (options.KeepDirectoryStructure) {
        const QString source = withoutLastPathComponent(place.sourcePath);
        destination.insert(source, destinationOf(source, folders, options.OutputPath));
    }
    return {outputPath(place, options, destination), size};
}

}  // namespace zelto
