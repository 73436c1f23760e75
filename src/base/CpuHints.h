// SPDX-License-Identifier: GPL-3.0-or-later
/// What a program may tell the processor beside its work: nothing here changes a result.
#pragma once
#include <hwy/cache_control.h>

namespace zp
{

/// Inside a loop that waits for another thread: saves power and lets the core's other thread run.
inline void pauseSpinning() { hwy::Pause(); }

/// The cache line at @p place will be read soon. Any address will do, also one that is not the program's.
inline void prefetch(const void* place) { __builtin_prefetch(place); }
/// The same for a line that will be written.
inline void prefetchForWriting(void* place) { __builtin_prefetch(place, 1); }

} // namespace zp
