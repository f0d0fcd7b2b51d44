// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a file for libraries that decode it: piece by piece for callbacks written in C, through which no
// exception may pass, or all at once for libraries that want them so.
#pragma once

#include "pictures/picture_needs.h"

#include <QByteArray>
#include <QIODevice>

#include <new>

namespace zelto {

// How many of `count` bytes were read; fewer at the file's end, on an error, or where memory does not suffice.
inline qint64 readBytes(QIODevice& device, void* target, qint64 count) noexcept {
    try {
        return qMax(device.read(static_cast<char*>(target), count), qint64{0});
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

// All of `device`, from its beginning; fewer bytes than its size where reading fails. Throws std::bad_alloc where that
// is more than may be held.
inline QByteArray allBytes(QIODevice& device) {
    if (device.size() > memoryAllowed(device.size())) throw std::bad_alloc();
    device.seek(0);
    return device.readAll();
}

}  // namespace zelto
