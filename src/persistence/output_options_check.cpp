// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/output_options_check.h"

#include <QFileInfo>

namespace zelto {

std::optional<OptionsProblem> outputOptionsProblem(const OutputOptions& options) {
    if (options.OutputPath.isEmpty()) {
        return OptionsProblem{QStringLiteral("Output path cannot be empty"),
                              QStringLiteral("Please select the folder for the output")};
    }
    const QFileInfo folder(options.OutputPath);
    if (!folder.isDir() || !folder.isWritable()) {
        return OptionsProblem{
            QStringLiteral("Output path not accessible"),
            QStringLiteral("The selected path is not accessible. Please select another path.")};
    }
    if (options.ResizeImage && options.ResizeType == resize_type::LongerSide &&
        options.LongestsideSize <= 0) {
        return OptionsProblem{QStringLiteral("Longer side cannot be empty"),
                              QStringLiteral("Please enter the size of the longer side of the photo")};
    }
    return std::nullopt;
}

}  // namespace zelto
