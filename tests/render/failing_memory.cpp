// SPDX-License-Identifier: GPL-3.0-or-later
#include "failing_memory.h"

#include <atomic>
#include <cstddef>

namespace {

constexpr std::size_t Large = 20'000;  // bytes
std::atomic<long> before = -1;         // large allocations until the one that fails; below 0 none does

}  // namespace

namespace zelto {

void failLargeAllocation(long n) {
    before = n;
}

bool largeAllocationFailed() {
    return before < 0;
}

}  // namespace zelto

// The sanitizers bring an allocator of their own; the tests that need this one are left out there.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
// The C library's own allocator under the name it keeps for programs that replace malloc.
extern "C" void* __libc_malloc(std::size_t bytes);

extern "C" void* malloc(std::size_t bytes) {
    const bool fails = bytes >= Large && before.load() >= 0 && before.fetch_sub(1) == 0;
    return fails ? nullptr : __libc_malloc(bytes);
}
#endif
