// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of every photo's output, settled before a run writes anything: which outputs share a name, which exist
// already, which would replace a photo of the list, and what the user's rules make of that. planOutputs() in
// batch_request.h makes a plan; both programs tell the user from it, and the run follows it.
#pragma once

#include "records/photo_warning.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <optional>
#include <vector>

namespace zelto {

// What happens to an output whose path is taken.
enum class NameRule {
    Replace,
    Number,  // gets 1, 2, ... at the end of its name, the first that is free
    Skip,    // is not written
    Fail     // is not written, and its photo counts as failed
};

struct NameRules {
    NameRule sameName = NameRule::Replace;  // by another photo of the run
    NameRule existing = NameRule::Replace;  // by a file that stands there before the run
};

// The output of one photo.
struct PlannedOutput {
    enum class Fate { Write, Skip, Fail };

    Fate fate = Fate::Write;
    QString reason;     // for the user, where it is not written
    QString name;       // where it is taken from the photo; without the number
    qint64 number = 0;  // at the end of the name; 0 for none
    std::optional<std::size_t>
        sharesNameOf;              // the first photo with the same output, if that is an earlier one
    bool replacesEarlier = false;  // that of another photo, from a run before this one
};

struct OutputPlan {
    std::vector<PlannedOutput> outputs;  // one per photo, unchecked ones included

    qint64 photos = 0;           // that are written
    qint64 files = 0;            // that they become
    QStringList sharedNames;     // paths that more than one photo would have without the rules, each once
    QStringList existing;        // paths where a file stands already, each once
    QStringList replacedPhotos;  // photos of the list that an output replaces, in list order
};

// The warning of a photo whose output replaces that of an earlier photo of the run.
PhotoWarning sameNameWarning();

}  // namespace zelto
