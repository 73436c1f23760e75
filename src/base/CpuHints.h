// SPDX-License-Identifier: GPL-3.0-or-later
/// What a program may tell the processor about memory and waiting.
#pragma once
#include <hwy/cache_control.h>

namespace zp
{

/// Inside a loop that waits for another thread: saves power and lets the core's other thread run.
inline void pauseSpinning() { hwy::Pause(); }

/// The cache line at @p place will be read soon. (Always inlined: as calls the compiler takes the hints for nothing and
/// leaves them out.) Any address will do, also one that is not the program's.
[[gnu::always_inline]] inline void prefetch(const void* place) { __builtin_prefetch(place); }
/// The same for a line that will be written.
[[gnu::always_inline]] inline void prefetchForWriting(void* place) { __builtin_prefetch(place, 1); }

/// Behind stores that went past the cache: other threads see them once this thread has said that it is done.
inline void finishStreaming() { hwy::FlushStream(); }

} // namespace zp
