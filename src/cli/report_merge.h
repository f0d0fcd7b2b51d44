// SPDX-License-Identifier: GPL-3.0-or-later
// One report from those of the shards of one list.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QStringList>

namespace zelto {

struct MergedReport {
    QByteArray json;     // one document, as a run over the whole list would have printed it
    int exitStatus = 0;  // likewise
};

// Merges the reports in `files`, in any order. What a report says of its photos is taken over as it stands. Error:
// ErrorCode::InvalidValue, naming the shard that is missing, is there twice, could not be run or belongs to another
// list, or the file that is no report.
Result<MergedReport> mergeReports(const QStringList& files);

}  // namespace zelto
