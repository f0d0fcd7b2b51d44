// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/shard.h"

#include "platform/words.h"

#include <algorithm>
#include <optional>

namespace zelto {
namespace {

constexpr QLatin1String Auto("auto");

std::optional<qint64> wholeNumber(const QString& text) {
    bool ok = false;
    const qint64 number = text.toLongLong(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

tl::unexpected<Error> wrongShard(const QString& what) {
    return fail(ErrorCode::InvalidValue, what);
}

// `given` is what a user finds the numbers in.
Result<Shard> checkedShard(std::optional<qint64> index, std::optional<qint64> count, const QString& given) {
    if (!index || !count || *index < 0 || *index >= *count) {
        return wrongShard(Words::tr("takes I/N with I from 0 to N - 1, such as 0/4, not “%1”").arg(given));
    }
    return Shard{*index, *count};
}

Result<Shard> shardOf(const QString& text, const QString& given) {
    return checkedShard(wholeNumber(text.section(QLatin1Char('/'), 0, 0)),
                        wholeNumber(text.section(QLatin1Char('/'), 1)), given);
}

Result<Shard> slurmShard(const Environment& environment) {
    const auto id = wholeNumber(environment("SLURM_ARRAY_TASK_ID"));
    const auto smallest = wholeNumber(environment("SLURM_ARRAY_TASK_MIN"));
    const auto count = wholeNumber(environment("SLURM_ARRAY_TASK_COUNT"));
    if (!id || !smallest || !count) {
        return wrongShard(
            Words::tr("auto found neither ZELTO_SHARD nor a Slurm array; set ZELTO_SHARD to I/N"));
    }
    // An array such as 0-30:2 counts in steps.
    const qint64 step = wholeNumber(environment("SLURM_ARRAY_TASK_STEP")).value_or(1);
    return checkedShard((*id - *smallest) / std::max<qint64>(step, 1), count,
                        QStringLiteral("SLURM_ARRAY_TASK_ID %1 of %2").arg(*id).arg(*count));
}

}  // namespace

QString shardText(const Shard& shard) {
    return QStringLiteral("%1/%2").arg(shard.index).arg(shard.count);
}

Result<Shard> parseShard(const QString& text, const Environment& environment) {
    if (text == Auto) {
        const QString own = environment("ZELTO_SHARD");
        return own.isEmpty() ? slurmShard(environment)
                             : shardOf(own, QStringLiteral("ZELTO_SHARD=%1").arg(own));
    }
    if (text.startsWith(Auto + QLatin1Char('/'))) {
        const QString index = environment("JOB_COMPLETION_INDEX");
        if (index.isEmpty()) {
            return wrongShard(
                Words::tr("%1 needs JOB_COMPLETION_INDEX, as an indexed Kubernetes Job sets it").arg(text));
        }
        return checkedShard(wholeNumber(index), wholeNumber(text.section(QLatin1Char('/'), 1)),
                            QStringLiteral("JOB_COMPLETION_INDEX %1 for %2").arg(index, text));
    }
    return shardOf(text, text);
}

}  // namespace zelto
