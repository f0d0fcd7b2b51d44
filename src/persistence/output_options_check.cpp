// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/output_options_check.h"

#include "platform/words.h"

#include <QFileInfo>

namespace zelto {

std::optional<OptionsProblem> outputOptionsProblem(const OutputOptions& options) {
    if (options.OutputPath.isEmpty()) {
        return OptionsProblem{Words::tr("Output path cannot be empty"),
                              Words::tr("Please select the folder for the output")};
    }
    const QFileInfo folder(options.OutputPath);
    if (!folder.isDir() || !folder.isWritable()) {
        return OptionsProblem{Words::tr("Output path not accessible"),
                              Words::tr("The selected path is not accessible. Please select another path.")};
    }
    if (options.ResizeImage && options.ResizeType == resize_type::LongerSide &&
        options.LongestsideSize <= 0) {
        return OptionsProblem{Words::tr("Longer side cannot be empty"),
                              Words::tr("Please enter the size of the longer side of the photo")};
    }
    return std::nullopt;
}

}  // namespace zelto
