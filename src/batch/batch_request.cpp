// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/batch_request.h"

#include "batch/output_name.h"
#include "platform/file_identity.h"

namespace zelto {

RunDestinations runDestinations(const BatchRequest& request) {
    const OutputOptions& options = request.options;
    RunDestinations destinations{request.folders, {}};
    if (options.KeepDirectoryStructure && !options.CombineToSinglePDF) {
        destinations.topFolders = resolveDestinations(destinations.folders, options.OutputPath);
    }
    return destinations;
}

PhotoTask photoTask(const BatchRequest& request, const RunDestinations& destinations, std::size_t row,
                    const QDateTime& now) {
    const QString& source = request.photos.at(row).path;
    const auto place = static_cast<qint64>(row);
    return {place, static_cast<qint64>(request.photos.size()), source,
            outputPath({source, place, now.date()}, request.options, destinations.folders), now};
}

QStringList replacedPhotos(const BatchRequest& request, const QDateTime& now) {
    const RunDestinations destinations = runDestinations(request);
    FileSet outputs;
    for (std::size_t row = 0; row < request.photos.size(); ++row) {
        if (!request.photos[row].checked) continue;
        outputs.insert(fileIdentity(photoTask(request, destinations, row, now).output));
    }
    QStringList replaced;
    for (const BatchPhoto& photo : request.photos) {
        if (outputs.contains(fileIdentity(photo.path))) replaced.append(photo.path);
    }
    return replaced;
}

}  // namespace zelto
