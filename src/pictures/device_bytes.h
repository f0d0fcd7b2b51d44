// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes for the callbacks of libraries written in C, through which no exception may pass.
#pragma once

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

}  // namespace zelto
