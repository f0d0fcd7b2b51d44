// SPDX-License-Identifier: GPL-3.0-or-later
// What the user is told of a photo that was written, but perhaps not as it was meant. A warning never changes what is
// written.
#pragma once

#include <QString>

#include <cstdint>

namespace zelto {

struct PhotoWarning {
    std::int64_t watermark = -1;  // the record's place in the stack, from 0; -1 for the photo as a whole
    QString kind;                 // a word that programs can look for, such as "same-name"
    QString text;                 // a sentence for the user

    bool operator==(const PhotoWarning&) const = default;
};

}  // namespace zelto
