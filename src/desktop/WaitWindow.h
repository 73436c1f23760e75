// SPDX-License-Identifier: GPL-3.0-or-later
/// What a person sees of work that takes long and cannot be left alone: a window with a Cancel button.
#pragma once
#include "base/LongWait.h"
#include <memory>

namespace zp
{

/// In the main thread a window comes up after a second, over which Escape ends the waiting; in all others nobody is
/// asked. For ForeignDecoding::wait.
std::unique_ptr<LongWait> readingWait();
/// The same for setClipWait().
std::unique_ptr<LongWait> combiningWait();

} // namespace zp
