// SPDX-License-Identifier: GPL-3.0-or-later
// How much of the machine there is for this process. Any thread.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace zelto {

// The memory this process may have, in bytes: the machine's, or less where a container, a batch system or a limit of its
// address space says so.
qint64 availableMemory();

// What setting up takes before the first photo (fontconfig and the threads of a run), in bytes of address space, found
// with `ulimit -v`.
constexpr qint64 MemoryToStart = qint64{128} << 20;

// Error where this process cannot have `needed` bytes, what setting itself up takes. Libraries that run out of memory
// while they read their own settings, fontconfig above all, crash or go on without them, so it is asked before. Error:
// ErrorCode::OutOfMemory.
Result<void> checkMemoryToStart(qint64 needed = MemoryToStart);

// The smallest memory limit of the control groups a process is in and of those above them; nothing where there is
// none. `membership` is the content of its /proc/PID/cgroup, of version 1 or 2; `mountPoint` where the groups are.
std::optional<qint64> controlGroupMemoryLimit(const QByteArray& membership, const QString& mountPoint);

}  // namespace zelto
