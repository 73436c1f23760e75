// SPDX-License-Identifier: GPL-3.0-or-later
/// One standing pool of workers for long passes: starting a thread per call gains nothing on passes of milliseconds.
#pragma once
#include <cstddef>
#include <functional>

namespace zp
{

/// How many parts run at once, the caller included (at least 1). ZELPANE_JOBS overrides the machine's count.
int workerCount();

/// The same for a pass that is started here: 1 inside a body.
int workersHere();

/// Calls body(i) for i in [0, count), spread over the pool and the calling thread; returns when all are done. An
/// exception of a body is thrown again here, after the others ended. Calls from inside a body run in that thread.
/// Any thread may call; without memory for a pass it does all itself. Worth it from about half a millisecond of work.
void parallelFor(int count, const std::function<void(int)>& body);

/// Calls body(i) for i in [0, count) all at once, each in a thread of its own (the caller's is one), for work that
/// waits for a disk or a network as much as it computes, where more threads than processors make sense. Passes started
/// inside a body run in its thread. Returns when all are done; an exception of a body is thrown again then. Where the
/// system allows fewer threads, the caller runs what is left.
void parallelThreads(int count, const std::function<void(int)>& body);

/// Splits [0, rows) into bands of at least @p grain rows, at most a few per worker, and calls body(first, last) for
/// each.
void parallelBands(int rows, int grain, const std::function<void(int, int)>& body);

} // namespace zp
