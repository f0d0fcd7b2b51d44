// SPDX-License-Identifier: GPL-3.0-or-later
// Memory that runs out: in a test program that links this, one large allocation may be made to fail.
#pragma once

namespace zelto {

// Lets the `n`-th allocation from now on, from 0, of more bytes than a text has return nothing; -1 lets none fail.
void failLargeAllocation(long n);

// Whether it has come to that.
bool largeAllocationFailed();

}  // namespace zelto
