// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/machine_limits.h"

#include "platform/path_parts.h"
#include "platform/words.h"

#include <QFile>

#include <malloc.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace zelto {
namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Where the groups of a line of a membership file lie, and the file in each that holds its limit.
struct Hierarchy {
    QString root;
    QString group;
    QString limitFile;
};

// "0::/group" in version 2, "4:cpu,memory:/group" in version 1.
std::optional<Hierarchy> memoryHierarchy(const QByteArray& line, const QString& mountPoint) {
    const QList<QByteArray> parts = line.trimmed().split(':');
    if (parts.size() < 3) return std::nullopt;
    const QString group = QFile::decodeName(parts.mid(2).join(':'));
    if (parts[1].isEmpty()) return Hierarchy{mountPoint, group, QStringLiteral("memory.max")};
    if (!parts[1].split(',').contains("memory")) return std::nullopt;
    return Hierarchy{joinedPath(mountPoint, QStringLiteral("memory")), group,
                     QStringLiteral("memory.limit_in_bytes")};
}

std::optional<qint64> addressLimit() {
    rlimit addresses{};
    if (::getrlimit(RLIMIT_AS, &addresses) != 0 || addresses.rlim_cur == RLIM_INFINITY) return std::nullopt;
    return static_cast<qint64>(std::min<rlim_t>(addresses.rlim_cur, std::numeric_limits<qint64>::max()));
}

}  // namespace

std::optional<qint64> controlGroupMemoryLimit(const QByteArray& membership, const QString& mountPoint) {
    std::optional<qint64> smallest;
    for (const QByteArray& line : membership.split('\n')) {
        const std::optional<Hierarchy> hierarchy = memoryHierarchy(line, mountPoint);
        if (!hierarchy) continue;
        QString group = hierarchy->group;
        while (true) {
            bool isNumber = false;
            const QString file = joinedPath(joinedPath(hierarchy->root, group), hierarchy->limitFile);
            const qint64 limit = contents(file).trimmed().toLongLong(&isNumber);
            if (isNumber && limit > 0) smallest = std::min(limit, smallest.value_or(limit));
            if (group.isEmpty() || group == QLatin1String("/")) break;
            group = withoutLastPathComponent(group);
        }
    }
    return smallest;
}

qint64 availableMemory() {
    const qint64 machine = qint64{sysconf(_SC_PHYS_PAGES)} * sysconf(_SC_PAGESIZE);
    const auto limit = controlGroupMemoryLimit(contents(QStringLiteral("/proc/self/cgroup")),
                                               QStringLiteral("/sys/fs/cgroup"));
    return std::min({machine, limit.value_or(machine), addressLimit().value_or(machine)});
}

Result<void> checkMemoryToStart(qint64 needed) {
    const auto bytes = static_cast<std::size_t>(needed);
    // The allocator sets 64 MB aside for each thread.
    if (addressLimit()) ::mallopt(M_ARENA_MAX, 1);
    void* const memory =
        ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)  // NOLINT(performance-no-int-to-ptr): the system's own constant
        return fail(ErrorCode::OutOfMemory, Words::tr("there is not enough memory to start"));
    ::munmap(memory, bytes);
    return {};
}

}  // namespace zelto
