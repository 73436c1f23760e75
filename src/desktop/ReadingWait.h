// SPDX-License-Identifier: GPL-3.0-or-later
/// What a person sees of a picture that takes long to be read by another process: a window with a Cancel button.
#pragma once
#include "codecs/ForeignDecoder.h"

namespace zp
{

/// For ForeignDecoding::wait. In the main thread a window comes up after a second, over which Escape ends the waiting;
/// in all others nobody is asked.
std::unique_ptr<codec::DecodingWait> readingWait();

} // namespace zp
