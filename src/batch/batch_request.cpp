// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/batch_request.h"

#include "batch/output_name.h"

namespace zelto {

RunDestinations runDestinations(const BatchRequest& request) {
    const OutputOptions& options = request.options;
    RunDestinations destinations{request.folders, {}};
    if (options.KeepDirectoryStructure && !combinesIntoOnePdf(options)) {
        destinations.topFolders = resolveDestinations(destinations.folders, options.OutputPath);
    }
    return destinations;
}

PhotoTask photoTask(const BatchRequest& request, const RunDestinations& destinations,
                    const PlannedOutput& output, std::size_t row, const QDateTime& now) {
    const QString& source = request.photos.at(row).path;
    const qint64 place = request.firstRow + static_cast<qint64>(row);
    return {place, request.firstRow + static_cast<qint64>(request.photos.size()), source,
            outputPath({source, place, now.date(), output.number, output.name}, request.options,
                       destinations.folders),
            now};
}

}  // namespace zelto
