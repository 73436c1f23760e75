// SPDX-License-Identifier: GPL-3.0-or-later
/// Only for builds under ThreadSanitizer: Qt's painter hands bands of large fills to its pool, and since Qt itself is
/// not instrumented, each such band looks like a race. Run in the calling thread, they leave nothing to misread, and
/// races of our own stay visible.
#include <QThreadPool>
#include <functional>

void QThreadPool::start(std::function<void()> functionToRun, int) { functionToRun(); }
