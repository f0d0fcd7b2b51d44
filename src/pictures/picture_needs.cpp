// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_needs.h"

#include "pictures/picture_reader.h"
#include "platform/machine_limits.h"
#include "platform/words.h"

#include <algorithm>

namespace zelto {
namespace {

constexpr qint64 SmallFile = qint64{1} << 20;
constexpr qint64 SmallFileMemory = qint64{1} << 30;

// Whether a file can hold so many pixels. No format packs a photo as tightly as a file where this says no.
bool isPlausible(QSize size, qint64 fileBytes) {
    constexpr qint64 AlwaysFits = qint64{1} << 26;
    constexpr qint64 MaximumPixelsPerByte = 1 << 14;
    if (size.isEmpty() || pixelCount(size) > MaximumPicturePixels) return false;
    return pixelCount(size) <= AlwaysFits || pixelCount(size) / MaximumPixelsPerByte <= fileBytes;
}

}  // namespace

qint64 memoryAllowed(qint64 fileBytes) {
    static const qint64 machine = availableMemory();
    return fileBytes < SmallFile ? std::min(machine, SmallFileMemory) : machine;
}

Result<void> checkMemory(qint64 memory, qint64 fileBytes) {
    const qint64 allowed = memoryAllowed(fileBytes);
    if (memory <= allowed) return {};
    constexpr qint64 Megabyte = qint64{1} << 20;
    return fail(ErrorCode::Damaged,
                Words::tr("This picture would take %1 MB of memory. No more than %2 MB are used "
                          "for one from a file of this size on this machine.")
                    .arg(memory / Megabyte)
                    .arg(allowed / Megabyte));
}

Result<void> checkNeeds(const PictureNeeds& needs, qint64 fileBytes) {
    if (!isPlausible(needs.size, fileBytes)) return fail(ErrorCode::Damaged, QString(DamagedPictureMessage));
    return checkMemory(std::max(needs.memory, needs.decoded), fileBytes);
}

}  // namespace zelto
