// SPDX-License-Identifier: GPL-3.0-or-later
// One run's share of a batch that is spread over several runs.
#pragma once

#include "platform/result.h"

#include <QString>

#include <functional>

namespace zelto {

// The rows of the whole list, counted from 0, that leave the remainder `index` when divided by `count`.
struct Shard {
    qint64 index = 0;
    qint64 count = 1;

    bool contains(qint64 row) const { return row % count == index; }
    bool isWhole() const { return count == 1; }
};

// "I/N", as parseShard() takes it.
QString shardText(const Shard& shard);

// A variable of the environment; empty where it is not set.
using Environment = std::function<QString(const char* name)>;

// "I/N"; "auto" for what ZELTO_SHARD or a Slurm array task says; "auto/N" for a Kubernetes completion index. Error:
// ErrorCode::InvalidValue, saying what was expected.
Result<Shard> parseShard(const QString& text, const Environment& environment);

}  // namespace zelto
